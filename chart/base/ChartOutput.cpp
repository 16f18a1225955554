#include "chart/base/ChartOutput.h"

#include "draw/canvas/DrawArea.h"
#include "foundation/Constants.h"

namespace {

struct OutputFormat {
    int code;
    MemBlock (*encode)(DrawArea *d);
};

const int kJPGQuality = 80;

const OutputFormat kFormats[] = {
    {kPNG, [](DrawArea *d) { return d->outPNG2(); }},
    {kGIF, [](DrawArea *d) { return d->outGIF2(); }},
    {kJPG, [](DrawArea *d) { return d->outJPG2(kJPGQuality); }},
    {kWMP, [](DrawArea *d) { return d->outWMP2(); }},
    {kBMP, [](DrawArea *d) { return d->outBMP2(); }},
    {kSVG, [](DrawArea *d) { return d->outSVG2(""); }},
    {kSVGZ, [](DrawArea *d) { return d->outSVG2("compress"); }},
    {kPDF, [](DrawArea *d) { return d->outPDF2(); }},
    {ChartOutput::kAGF, [](DrawArea *d) { return d->outAGF2(); }},
    // The host takes pictures as uncompressed bitmaps.
    {ChartOutput::kQTIMG, [](DrawArea *d) { return d->outBMP2(); }},
};

}  // namespace

MemBlock ChartOutput::encode(DrawArea *d, int format) {
    if (!d) return MemBlock();
    for (const OutputFormat &f : kFormats)
        if (f.code == format) return f.encode(d);
    return d->outPNG2();
}
