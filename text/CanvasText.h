#pragma once

#include "draw/canvas/CanvasTextService.h"

// The text layer's service to the canvas: lays texts out with TTFText.
class CanvasText : public CanvasTextService {
public:
    // Plugs the text layer into every canvas; called by whatever starts the
    // engine (charts, the flat interface, tests of text on canvases).
    static void install();

    TTFText *text(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                  double fontHeight, double fontWidth, double angle, bool vertical,
                  int mode) override;
    void drawText(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                  double fontHeight, double fontWidth, double angle, bool vertical, int x, int y,
                  int maxWidth, int maxLines, int color, int alignment, int mode) override;
    void renderVSML(DrawArea *d, const char *markup, int mode) override;
    int testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                 char *report) override;
    void setFontSearchPath(const char *path, bool custom) override;
    std::string getFontSearchPath(bool custom) override;
};
