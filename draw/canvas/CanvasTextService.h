#pragma once

#include <cwchar>
#include <string>

class DrawArea;
class TTFText;

// What the canvas needs of the text layer.  Text sits above the canvas, so it
// plugs itself in here; until it has, the canvas's text operations do nothing.
// Sizes are points, angles degrees counter-clockwise; mode is the canvas's text
// anti-alias mode word.
class CanvasTextService {
public:
    static void install(CanvasTextService *service);
    static CanvasTextService *get();

    virtual TTFText *text(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical,
                          int mode) = 0;
    // Lays the text out (wrapped at maxWidth pixels and cut after maxLines lines
    // when those are positive), draws it with its alignment point at (x, y) and
    // lets it go.
    virtual void drawText(DrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical, int x,
                          int y, int maxWidth, int maxLines, int color, int alignment,
                          int mode) = 0;
    // Sizes the canvas to the mark-up in 8-point Arial on a transparent
    // background and draws it at the top left.
    virtual void renderVSML(DrawArea *d, const char *markup, int mode) = 0;
    // The font lookup with its report (at most 2048 bytes, terminated); 1 when it ran.
    virtual int testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                         char *report) = 0;
    // The font search path, or the custom one that "%PATH%" in it stands for.
    virtual void setFontSearchPath(const char *path, bool custom) = 0;
    virtual std::string getFontSearchPath(bool custom) = 0;

protected:
    virtual ~CanvasTextService() {}
};
