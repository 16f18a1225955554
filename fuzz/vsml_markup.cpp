// Random text through the inline mark-up reader and the layout: any tag, any
// nesting, any limits, then measures and drawing onto a small raster.
#include <cstdint>
#include <cstring>
#include <string>

#include "draw/canvas/DrawArea.h"
#include "draw/canvas/GlobalResources.h"
#include "text/layout/TTFText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static bool ready = false;
    if (!ready) {
        // Keep an img tag naming a device or a huge file cheap.
        GlobalResources::setSetting("@FileLimit", "65536");
        ready = true;
    }
    if (size < 4) return 0;
    int maxWidth = data[0] < 128 ? 0 : data[0] - 100;
    int maxLines = data[1] % 5;
    double angle = data[2] < 200 ? 0 : (data[2] - 200) * 7.5;
    int mode = data[3] % 7;
    std::string text((const char *)data + 4, size - 4);
    text = text.c_str();
    DrawArea *canvas = DrawArea::create();
    canvas->setSize(48, 48, 0xFFFFFF);
    TTFText *t = TTFText::create(canvas, text.c_str(), "arial.ttf", 0, 10, 0, angle, false, mode,
                                 maxWidth, maxLines, 0);
    volatile int sum = t->getWidth() + t->getHeight() + t->getBaseline() + t->getLineHeight() +
                       t->getLineDistance() + t->getAscent() + t->getDescent();
    (void)sum;
    t->draw(24, 24, 0, 1 + data[1] % 13);
    t->destroy();
    canvas->getPixel(24, 24);
    canvas->destroy();
    return 0;
}
