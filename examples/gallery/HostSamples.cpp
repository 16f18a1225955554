// The plug-in layer: the classes the host is given, and a drawing made through
// the flat interface that the host classes and C programs call.
#include <cstdio>

#include "api/CChart.h"
#include "api/CDrawArea.h"
#include "api/CTTFText.h"
#include "examples/gallery/Gallery.h"
#include "host/classes/ClassReference.h"

static bool classListing(const std::string &path) {
    FILE *f = fopen(path.c_str(), "wb");
    if (!f) return false;
    std::string text = classReference();
    bool ok = fwrite(text.data(), 1, text.size(), f) == text.size();
    return fclose(f) == 0 && ok;
}

static bool flatCanvas(const std::string &path) {
    CDrawArea *d = CDrawArea_create();
    CDrawArea_setSize(d, 360, 200, 0xf7f7f2);
    const int *palette = nullptr;
    int colors = 0;
    CChart_defaultPalette(&palette, &colors);
    int glass = CChart_glassEffect(3, 8, 5);
    for (int i = 0; i < 5; ++i) {
        int x = 30 + 62 * i, height = 30 + 22 * i;
        CDrawArea_rect(d, x, 170 - height, x + 44, 170, palette[8 + i], palette[8 + i], glass);
    }
    int gold = CDrawArea_getARGBColor(d, CChart_goldColor(90));
    CDrawArea_rect(d, 20, 172, 340, 180, gold, gold, 0);
    CTTFText *title =
        CDrawArea_text(d, "<*font=arialbd.ttf,size=14*>Flat interface", "arial.ttf", 10);
    CTTFText_draw(title, 180, 8, 0x1f3a5f, 8);
    CTTFText_destroy(title);
    bool ok = CDrawArea_out(d, path.c_str());
    CDrawArea_destroy(d);
    return ok;
}

VISTREL_GALLERY_SAMPLE("Plug-in", "The host classes with their declarations, as registered",
                       "host_classes.txt", classListing);
VISTREL_GALLERY_SAMPLE("Plug-in", "Bars drawn through the flat interface: palette, glass, gold",
                       "flat_interface.png", flatCanvas);
