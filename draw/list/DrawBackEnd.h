#pragma once

#include <vector>

#include "draw/list/GlyphText.h"
#include "draw/list/MetaOpcodes.h"
#include "foundation/ArrayViews.h"

// One item of a MultiLine record: a style change, or the next point of the
// line (drawn from the previous point with the current style).
struct MetaLineEntry {
    bool isStyle;
    int color;
    int width;
    double x, y;
};

// The poly-lines of a MultiLine record: a style entry ends the run so far and
// the next run starts at that run's last point.  Calls out(color, width, xy)
// for each run of two points or more; color and width hold the style in force
// before and after.
template <class Out>
void forEachLineRun(const MetaLineEntry *items, int count, int &color, int &width, Out out) {
    std::vector<double> run;
    auto flush = [&]() {
        if (run.size() >= 4) out(color, width, DoubleArray(run.data(), (int)run.size()));
        if (run.size() >= 2) run.erase(run.begin(), run.end() - 2);
    };
    for (int i = 0; items && i < count; ++i) {
        if (items[i].isStyle) {
            flush();
            color = items[i].color, width = items[i].width;
            continue;
        }
        run.push_back(items[i].x);
        run.push_back(items[i].y);
    }
    flush();
}

// One edge of a Shape record.  `type` is kPathLine, kPathArc or kPathArc2 and
// `v` holds the numbers in record order: Line x1 y1 x2 y2; Arc cx cy rx ry x1
// y1 x2 y2; Arc2 cx cy rx ry a1 a2 x1 y1 x2 y2.  Arc has no flag (false).
struct MetaPathItem {
    unsigned type;
    double v[10];
    int color;
    bool flag;
};

// What the display list plays on: the raster, PDF and SVG outputs implement
// it.  One operation per record kind, made from the record table
// (MetaOpcodes.h), called with the record's arguments in record order;
// colours are final words (plain colours or dynamic handles), and coordinates
// arrive already multiplied by the scale handed to beginPlay.  Every
// operation is pure: a back end that lacks one doesn't build.
class DrawBackEnd {
public:
    virtual ~DrawBackEnd() {}

    // Start and end of one run of the interpreter.  A scale other than 1
    // means the scaling interpreter is running.
    virtual void beginPlay(double scale) = 0;
    virtual void endPlay() = 0;
    // A fault in the stream, as text; the record is skipped.
    virtual void reportError(const char *message) = 0;
    // The records of a merged list are played between beginSymbol (its
    // DefineSymbol record) and endSymbol the first time the list is merged;
    // later merges refer to it by id.
    virtual void endSymbol(int id) = 0;
    // Dynamic layer roll-back.  Returns true when the back end went back to
    // the picture it saved at initDynamicLayer; it is then told each symbol
    // that the roll-back removed.
    virtual bool restoreSnapshot() = 0;
    virtual void removeSymbol(int id) = 0;

#define VISTREL_BACK_END_OPERATION(name, code, format, scaled, reading, operation, params) \
    virtual void operation params = 0;
    VISTREL_META_RECORDS(VISTREL_BACK_END_OPERATION)
#undef VISTREL_BACK_END_OPERATION
};
