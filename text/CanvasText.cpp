#include "text/CanvasText.h"

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "text/font/FontDriver.h"
#include "text/font/FontLock.h"
#include "text/font/FontSearchPath.h"
#include "text/layout/TTFText.h"

void CanvasText::install() {
    static CanvasText service;
    CanvasTextService::install(&service);
}

TTFText *CanvasText::text(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical,
                          int mode) {
    return TTFText::create(d, str, font, fontIndex, fontHeight, fontWidth, angle, vertical, mode, 0,
                           0, 0);
}

void CanvasText::drawText(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical, int x,
                          int y, int maxWidth, int maxLines, int color, int alignment, int mode) {
    if (!d) return;
    TTFText *t = TTFText::create(d, str, font, fontIndex, fontHeight, fontWidth, angle, vertical,
                                 mode, maxWidth, maxLines, 0);
    t->draw(x, y, color, alignment);
    // The display list keeps what it drew.
    t->destroy();
}

void CanvasText::renderVSML(DrawArea *d, const char *markup, int mode) {
    if (!d) return;
    TTFText *t = TTFText::create(d, markup, "Arial", 0, 8, 0, 0, false, mode, 0, 0, 0);
    d->setSize(t->getWidth(), t->getHeight(), kTransparent);
    t->draw(0, 0, kTextColor, kTopLeft);
    t->destroy();
}

int CanvasText::testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                         char *report) {
    if (!report) return 0;
    if (!(fontHeight <= 4096)) fontHeight = 100;
    if (!(fontWidth <= 4096)) fontWidth = 100;
    FontLock lock;
    return FontDriver::getDriver()->testFont(font, fontIndex, report, 2048, fontWidth, fontHeight);
}

void CanvasText::setFontSearchPath(const char *path, bool custom) {
    if (custom)
        FontSearchPath::setCustomFontSearchPath(path);
    else
        FontSearchPath::setFontSearchPath(path);
}

std::string CanvasText::getFontSearchPath(bool custom) {
    return custom ? FontSearchPath::getCustomFontSearchPath() : FontSearchPath::getFontSearchPath();
}
