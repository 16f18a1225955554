#include "text/font/cache/CanvasGlyphLimit.h"

int CanvasGlyphLimit::width = 0;
int CanvasGlyphLimit::height = 0;

CanvasGlyphLimit::CanvasGlyphLimit(int canvasWidth, int canvasHeight)
    : savedWidth(width), savedHeight(height) {
    bool sized = canvasWidth > 1 || canvasHeight > 1;
    width = sized ? canvasWidth : 0;
    height = sized ? canvasHeight : 0;
}

CanvasGlyphLimit::~CanvasGlyphLimit() {
    width = savedWidth;
    height = savedHeight;
}

bool CanvasGlyphLimit::allowsKeeping(int glyphWidth, int rows) {
    return width <= 0 || (glyphWidth <= width && rows <= height);
}
