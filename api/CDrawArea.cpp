#include "api/CDrawArea.h"

#include <string>

#include "api/Handles.h"
#include "draw/canvas/DrawArea.h"
#include "text/CanvasText.h"

using vistrel_api::D;
using vistrel_api::H;
using vistrel_api::putView;

CDrawArea *CDrawArea_create(void) {
    // Texts on a canvas need the text layer plugged in once.
    CanvasText::install();
    return H(DrawArea::create());
}

void CDrawArea_close(CDrawArea *d) {
    DrawArea::close(D(d));
}
void CDrawArea_retain(CDrawArea *d) {
    if (d) D(d)->retain();
}
void CDrawArea_destroy(CDrawArea *d) {
    if (d) D(d)->destroy();
}

void CDrawArea_enableVectorOutput(CDrawArea *d, bool enable) {
    if (d) D(d)->enableVectorOutput(enable);
}
void CDrawArea_initDynamicLayer(CDrawArea *d) {
    if (d) D(d)->initDynamicLayer();
}
void CDrawArea_removeDynamicLayer(CDrawArea *d) {
    if (d) D(d)->removeDynamicLayer();
}

void CDrawArea_setSize(CDrawArea *d, int width, int height, int bgColor) {
    if (d) D(d)->setSize(width, height, bgColor);
}
void CDrawArea_resize(CDrawArea *d, int newWidth, int newHeight, int filter, double blur) {
    if (d) D(d)->resize(newWidth, newHeight, filter, blur);
}
int CDrawArea_getWidth(CDrawArea *d) {
    return d ? D(d)->getWidth() : 0;
}
int CDrawArea_getHeight(CDrawArea *d) {
    return d ? D(d)->getHeight() : 0;
}
void CDrawArea_setClipRect(CDrawArea *d, int left, int top, int right, int bottom) {
    if (d) D(d)->setClipRect(left, top, right, bottom);
}
void CDrawArea_getClipRect(CDrawArea *d, int *left, int *top, int *right, int *bottom) {
    int box[4] = {0, 0, 0, 0};
    if (d) D(d)->getClipRect(&box[0], &box[1], &box[2], &box[3]);
    int *out[4] = {left, top, right, bottom};
    for (int i = 0; i < 4; ++i)
        if (out[i]) *out[i] = box[i];
}
void CDrawArea_setBgColor(CDrawArea *d, int color) {
    if (d) D(d)->setBgColor(color);
}
void CDrawArea_setBgDropShadow(CDrawArea *d, int color, int offsetX, int offsetY, int blurRadius) {
    if (d) D(d)->setBgDropShadow(color, offsetX, offsetY, blurRadius);
}
void CDrawArea_frameRect(CDrawArea *d, double x1, double y1, double x2, double y2,
                         const int *radius, int n, int color) {
    const int square[4] = {0, 0, 0, 0};
    if (d) D(d)->frameRect(x1, y1, x2, y2, radius ? radius : square, n, color);
}

void CDrawArea_move(CDrawArea *d, double xOffset, double yOffset, int bgColor, int filter,
                    double blur) {
    if (d) D(d)->move(xOffset, yOffset, bgColor, filter, blur);
}
void CDrawArea_rotate(CDrawArea *d, double angle, int bgColor, double cx, double cy, int filter,
                      double blur) {
    if (d) D(d)->rotate(angle, bgColor, cx, cy, filter, blur);
}
void CDrawArea_hFlip(CDrawArea *d) {
    if (d) D(d)->hFlip();
}
void CDrawArea_vFlip(CDrawArea *d) {
    if (d) D(d)->vFlip();
}
void CDrawArea_clone(CDrawArea *d, CDrawArea *target, int x, int y, int align, int newWidth,
                     int newHeight, int filter, double blur) {
    if (d && target) D(d)->clone(D(target), x, y, align, newWidth, newHeight, filter, blur);
}

void CDrawArea_pixel(CDrawArea *d, int x, int y, int color) {
    if (d) D(d)->pixel(x, y, color);
}
int CDrawArea_getPixel(CDrawArea *d, int x, int y) {
    return d ? D(d)->getPixel(x, y) : 0;
}
void CDrawArea_commitSuperPixels(CDrawArea *d) {
    if (d) D(d)->commitSuperPixels();
}

void CDrawArea_hline(CDrawArea *d, int x1, int x2, int y, int color) {
    if (d) D(d)->hline(x1, x2, y, color);
}
void CDrawArea_vline(CDrawArea *d, int y1, int y2, int x, int color) {
    if (d) D(d)->vline(y1, y2, x, color);
}
void CDrawArea_line(CDrawArea *d, double x1, double y1, double x2, double y2, int color,
                    int lineWidth) {
    if (d) D(d)->line(x1, y1, x2, y2, color, lineWidth);
}
void CDrawArea_rawRect(CDrawArea *d, double x1, double y1, double x2, double y2, int color) {
    if (d) D(d)->rawRect(x1, y1, x2, y2, color);
}
void CDrawArea_rawMultiRect(CDrawArea *d, const int *coords, int len, int color) {
    if (d) D(d)->rawMultiRect(IntArray(coords, len), color);
}
void CDrawArea_rawExactLine(CDrawArea *d, double x1, double y1, double x2, double y2, int color,
                            int lineWidth) {
    if (d) D(d)->rawExactLine(x1, y1, x2, y2, color, lineWidth);
}
void CDrawArea_arc(CDrawArea *d, double cx, double cy, double rx, double ry, double a1, double a2,
                   int color) {
    if (d) D(d)->arc(cx, cy, rx, ry, a1, a2, color);
}
void CDrawArea_rect(CDrawArea *d, double x1, double y1, double x2, double y2, int edgeColor,
                    int fillColor, int raisedEffect) {
    if (d) D(d)->rect(x1, y1, x2, y2, edgeColor, fillColor, raisedEffect);
}
void CDrawArea_roundedRect(CDrawArea *d, double x1, double y1, double x2, double y2,
                           const int *radius, const int *edgeColor, int fillColor) {
    if (!d || !radius || !edgeColor) return;
    D(d)->roundedRect(x1, y1, x2, y2, radius, edgeColor, fillColor);
}
void CDrawArea_setBgRoundedClip(CDrawArea *d, int r1, int r2, int r3, int r4, int color) {
    if (d) D(d)->setBgRoundedClip(r1, r2, r3, r4, color);
}
void CDrawArea_rawPolyline(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                           int color, int lineWidth) {
    if (d) D(d)->rawPolyline(DoubleArray(x, xLen), DoubleArray(y, yLen), color, lineWidth);
}
void CDrawArea_polygon2(CDrawArea *d, const int *x, int xLen, const int *y, int yLen, int edgeColor,
                        int fillColor) {
    if (d) D(d)->polygon2(IntArray(x, xLen), IntArray(y, yLen), edgeColor, fillColor);
}
void CDrawArea_polygon(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                       int edgeColor, int fillColor) {
    if (d) D(d)->polygon(DoubleArray(x, xLen), DoubleArray(y, yLen), edgeColor, fillColor);
}
void CDrawArea_curve(CDrawArea *d, const double *x, int xLen, const double *y, int yLen, int color,
                     int lineWidth) {
    if (d) D(d)->curve(DoubleArray(x, xLen), DoubleArray(y, yLen), color, lineWidth);
}
void CDrawArea_polyShape(CDrawArea *d, const double *xy, int len, int edgeColor, int fillColor) {
    if (d) D(d)->polyShape(DoubleArray(xy, len), edgeColor, fillColor);
}
void CDrawArea_surface(CDrawArea *d, double x1, double y1, double x2, double y2, double depthX,
                       double depthY, int edgeColor, int fillColor) {
    if (d) D(d)->surface(x1, y1, x2, y2, depthX, depthY, edgeColor, fillColor);
}
void CDrawArea_sector(CDrawArea *d, double cx, double cy, double rx, double ry, double a1,
                      double a2, int edgeColor, int fillColor) {
    if (d) D(d)->sector(cx, cy, rx, ry, a1, a2, edgeColor, fillColor);
}
void CDrawArea_cylinder(CDrawArea *d, double cx, double cy, double rx, double ry, double a1,
                        double a2, double depthX, double depthY, int edgeColor, int fillColor) {
    if (d) D(d)->cylinder(cx, cy, rx, ry, a1, a2, depthX, depthY, edgeColor, fillColor);
}
void CDrawArea_circle(CDrawArea *d, double cx, double cy, double rx, double ry, int edgeColor,
                      int fillColor) {
    if (d) D(d)->circle(cx, cy, rx, ry, edgeColor, fillColor);
}
void CDrawArea_ringSector(CDrawArea *d, double cx, double cy, double rx, double ry, double rx2,
                          double ry2, double a1, double a2, int edgeColor, int fillColor) {
    if (d) D(d)->ringSector(cx, cy, rx, ry, rx2, ry2, a1, a2, edgeColor, fillColor);
}
void CDrawArea_ring(CDrawArea *d, double cx, double cy, double rx, double ry, double rx2,
                    double ry2, int edgeColor, int fillColor) {
    if (d) D(d)->ring(cx, cy, rx, ry, rx2, ry2, edgeColor, fillColor);
}
void CDrawArea_gouraudTriangle(CDrawArea *d, double x0, double y0, double i0, double x1, double y1,
                               double i1, double x2, double y2, double i2, int color) {
    if (d) D(d)->gouraudTriangle(x0, y0, i0, x1, y1, i1, x2, y2, i2, color);
}
void CDrawArea_fill2(CDrawArea *d, int x, int y, int color, int borderColor) {
    if (d) D(d)->fill2(x, y, color, borderColor);
}
void CDrawArea_fill(CDrawArea *d, int x, int y, int color) {
    if (d) D(d)->fill(x, y, color);
}

CTTFText *CDrawArea_text(CDrawArea *d, const char *str, const char *font, double fontSize) {
    return d ? H(D(d)->text(str, font, fontSize)) : nullptr;
}
CTTFText *CDrawArea_textw(CDrawArea *d, const wchar_t *str, const char *font, double fontSize) {
    return d ? H(D(d)->textw(str, font, fontSize)) : nullptr;
}
CTTFText *CDrawArea_text2(CDrawArea *d, const char *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical) {
    if (!d) return nullptr;
    return H(D(d)->text2(str, font, fontIndex, fontHeight, fontWidth, angle, vertical));
}
CTTFText *CDrawArea_text2w(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                           double fontHeight, double fontWidth, double angle, bool vertical) {
    if (!d) return nullptr;
    return H(D(d)->text2w(str, font, fontIndex, fontHeight, fontWidth, angle, vertical));
}
void CDrawArea_text3(CDrawArea *d, const char *str, const char *font, double fontSize, int x, int y,
                     int color) {
    if (d) D(d)->text3(str, font, fontSize, x, y, color);
}
void CDrawArea_text3w(CDrawArea *d, const wchar_t *str, const char *font, double fontSize, int x,
                      int y, int color) {
    if (d) D(d)->text3w(str, font, fontSize, x, y, color);
}
void CDrawArea_text4(CDrawArea *d, const char *str, const char *font, int fontIndex,
                     double fontHeight, double fontWidth, double angle, bool vertical, int x, int y,
                     int color, int alignment) {
    if (!d) return;
    D(d)->text4(str, font, fontIndex, fontHeight, fontWidth, angle, vertical, x, y, color,
                alignment);
}
void CDrawArea_text4w(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                      double fontHeight, double fontWidth, double angle, bool vertical, int x,
                      int y, int color, int alignment) {
    if (!d) return;
    D(d)->text4w(str, font, fontIndex, fontHeight, fontWidth, angle, vertical, x, y, color,
                 alignment);
}
void CDrawArea_textBlock(CDrawArea *d, const char *str, const char *font, int fontIndex,
                         double fontHeight, double fontWidth, double angle, int x, int y,
                         int maxWidth, int maxLines, int color, int alignment) {
    if (!d) return;
    D(d)->textBlock(str, font, fontIndex, fontHeight, fontWidth, angle, x, y, maxWidth, maxLines,
                    color, alignment);
}
void CDrawArea_textBlockw(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, int x, int y,
                          int maxWidth, int maxLines, int color, int alignment) {
    if (!d) return;
    D(d)->textBlockw(str, font, fontIndex, fontHeight, fontWidth, angle, x, y, maxWidth, maxLines,
                     color, alignment);
}
void CDrawArea_renderVSML(CDrawArea *d, const char *markup) {
    if (d) D(d)->renderVSML(markup);
}

void CDrawArea_merge(CDrawArea *d, CDrawArea *source, int x, int y, int align, int transparency) {
    if (d) D(d)->merge(D(source), x, y, align, transparency);
}
void CDrawArea_mergeScaled(CDrawArea *d, CDrawArea *source, int x, int y, int width, int height,
                           int transparency) {
    if (d) D(d)->mergeScaled(D(source), x, y, width, height, transparency);
}
void CDrawArea_mergeRotated(CDrawArea *d, CDrawArea *source, double x, double y, double angle) {
    if (d) D(d)->mergeRotated(D(source), x, y, angle);
}
void CDrawArea_tile(CDrawArea *d, CDrawArea *source, int transparency) {
    if (d) D(d)->tile(D(source), transparency);
}

void CDrawArea_setSearchPath(CDrawArea *d, const char *path) {
    if (d) D(d)->setSearchPath(path);
}
bool CDrawArea_loadGIF(CDrawArea *d, const char *path) {
    return d && D(d)->loadGIF(path);
}
bool CDrawArea_loadPNG(CDrawArea *d, const char *path) {
    return d && D(d)->loadPNG(path);
}
bool CDrawArea_loadJPG(CDrawArea *d, const char *path) {
    return d && D(d)->loadJPG(path);
}
bool CDrawArea_loadBMP(CDrawArea *d, const char *path) {
    return d && D(d)->loadBMP(path);
}
bool CDrawArea_loadWMP(CDrawArea *d, const char *path) {
    return d && D(d)->loadWMP(path);
}
bool CDrawArea_load(CDrawArea *d, const char *path) {
    return d && D(d)->load(path);
}
bool CDrawArea_load2(CDrawArea *d, int length, const char *data, int imgType) {
    return d && D(d)->load2(length, data, imgType);
}

void CDrawArea_rAffineTransform(CDrawArea *d, double a, double b, double c, double dd, double e,
                                double f, int bgColor, int filter, double blur) {
    if (d) D(d)->rAffineTransform(a, b, c, dd, e, f, bgColor, filter, blur);
}
void CDrawArea_affineTransform(CDrawArea *d, double a, double b, double c, double dd, double e,
                               double f, int bgColor, int filter, double blur) {
    if (d) D(d)->affineTransform(a, b, c, dd, e, f, bgColor, filter, blur);
}
void CDrawArea_shearTransform(CDrawArea *d, double xShear, double yShear, int bgColor, int filter,
                              double blur) {
    if (d) D(d)->shearTransform(xShear, yShear, bgColor, filter, blur);
}
void CDrawArea_waveTransform(CDrawArea *d, double period, double amplitude, double phase,
                             int bgColor) {
    if (d) D(d)->waveTransform(period, amplitude, phase, bgColor);
}
void CDrawArea_sphereTransform(CDrawArea *d, int bgColor) {
    if (d) D(d)->sphereTransform(bgColor);
}
void CDrawArea_hCylinderTransform(CDrawArea *d, int bgColor) {
    if (d) D(d)->hCylinderTransform(bgColor);
}
void CDrawArea_vCylinderTransform(CDrawArea *d, int bgColor) {
    if (d) D(d)->vCylinderTransform(bgColor);
}
void CDrawArea_vTriangleTransform(CDrawArea *d, int bgColor) {
    if (d) D(d)->vTriangleTransform(bgColor);
}
void CDrawArea_hTriangleTransform(CDrawArea *d, int bgColor) {
    if (d) D(d)->hTriangleTransform(bgColor);
}

bool CDrawArea_out(CDrawArea *d, const char *path) {
    return d && D(d)->out(path);
}
bool CDrawArea_outGIF(CDrawArea *d, const char *path) {
    return d && D(d)->outGIF(path);
}
bool CDrawArea_outPNG(CDrawArea *d, const char *path) {
    return d && D(d)->outPNG(path);
}
bool CDrawArea_outJPG(CDrawArea *d, const char *path, int quality) {
    return d && D(d)->outJPG(path, quality);
}
bool CDrawArea_outWMP(CDrawArea *d, const char *path) {
    return d && D(d)->outWMP(path);
}
bool CDrawArea_outBMP(CDrawArea *d, const char *path) {
    return d && D(d)->outBMP(path);
}
bool CDrawArea_outSVG(CDrawArea *d, const char *path, const char *options) {
    return d && D(d)->outSVG(path, options);
}
bool CDrawArea_outPDF(CDrawArea *d, const char *path) {
    return d && D(d)->outPDF(path);
}
bool CDrawArea_outAGF(CDrawArea *d, const char *path) {
    return d && D(d)->outAGF(path);
}
void CDrawArea_outGIF2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outGIF2() : MemBlock(), data, len);
}
void CDrawArea_outPNG2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outPNG2() : MemBlock(), data, len);
}
void CDrawArea_outJPG2(CDrawArea *d, int quality, const char **data, int *len) {
    putView(d ? D(d)->outJPG2(quality) : MemBlock(), data, len);
}
void CDrawArea_outWMP2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outWMP2() : MemBlock(), data, len);
}
void CDrawArea_outBMP2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outBMP2() : MemBlock(), data, len);
}
void CDrawArea_outSVG2(CDrawArea *d, const char *options, const char **data, int *len) {
    putView(d ? D(d)->outSVG2(options) : MemBlock(), data, len);
}
void CDrawArea_outPDF2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outPDF2() : MemBlock(), data, len);
}
void CDrawArea_outAGF2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outAGF2() : MemBlock(), data, len);
}
void CDrawArea_outAlpha2(CDrawArea *d, const char **data, int *len) {
    putView(d ? D(d)->outAlpha2() : MemBlock(), data, len);
}
void CDrawArea_setOutputOptions(CDrawArea *d, const char *options) {
    if (d) D(d)->setOutputOptions(options);
}

void CDrawArea_setPaletteMode(CDrawArea *d, int value) {
    if (d) D(d)->setPaletteMode(value);
}
void CDrawArea_setDitherMethod(CDrawArea *d, int value) {
    if (d) D(d)->setDitherMethod(value);
}
void CDrawArea_setTransparentColor(CDrawArea *d, int color) {
    if (d) D(d)->setTransparentColor(color);
}
void CDrawArea_setAntiAliasText(CDrawArea *d, int value) {
    if (d) D(d)->setAntiAliasText(value);
}
void CDrawArea_setAntiAlias(CDrawArea *d, bool shapeAntiAlias, int textAntiAlias) {
    if (d) D(d)->setAntiAlias(shapeAntiAlias, textAntiAlias);
}
void CDrawArea_setInterlace(CDrawArea *d, int value) {
    if (d) D(d)->setInterlace(value);
}
void CDrawArea_setColorTable(CDrawArea *d, int index, int color) {
    if (d) D(d)->setColorTable(index, color);
}
void CDrawArea_setColorTable2(CDrawArea *d, const int *colors, int len, int offset) {
    if (d) D(d)->setColorTable(IntArray(colors, len), offset);
}
void CDrawArea_setColorTableRaw(CDrawArea *d, const int *colors, int len, int offset) {
    if (d) D(d)->setColorTableRaw(IntArray(colors, len), offset);
}
int CDrawArea_getARGBColor(CDrawArea *d, int color) {
    return d ? D(d)->getARGBColor(color) : 0;
}
const int *CDrawArea_mapColors(CDrawArea *d, const int *colors, int len) {
    return d ? D(d)->mapColors(IntArray(colors, len)) : nullptr;
}
const int *CDrawArea_mapColorPairs(CDrawArea *d, const int *pairs, int len) {
    return d ? D(d)->mapColorPairs(IntArray(pairs, len)) : nullptr;
}
bool CDrawArea_isOpaque(CDrawArea *d, int color) {
    return d && D(d)->isOpaque(color);
}
bool CDrawArea_isSpecialColor(CDrawArea *d, int color) {
    return d && D(d)->isSpecialColor(color);
}
int CDrawArea_halfColor(CDrawArea *d, int color) {
    return d ? D(d)->halfColor(color) : 0;
}
int CDrawArea_adjustBrightness(CDrawArea *d, int color, double brightness) {
    return d ? D(d)->adjustBrightness(color, brightness) : 0;
}
int CDrawArea_allocDynColor(CDrawArea *d) {
    return d ? D(d)->allocDynColor() : 0;
}
bool CDrawArea_isDynamicColor(CDrawArea *d, int color) {
    return d && D(d)->isDynamicColor(color);
}
void CDrawArea_freeDynColor(CDrawArea *d, int color) {
    if (d) D(d)->freeDynColor(color);
}
void CDrawArea_reserveDynColor(CDrawArea *d, int color) {
    if (d) D(d)->reserveDynColor(color);
}

int CDrawArea_dashLineColor(CDrawArea *d, int color, int patternCode) {
    return d ? D(d)->dashLineColor(color, patternCode) : 0;
}
int CDrawArea_patternColor(CDrawArea *d, const int *colors, int len, int height, int startX,
                           int startY) {
    return d ? D(d)->patternColor(IntArray(colors, len), height, startX, startY) : 0;
}
int CDrawArea_patternColor2(CDrawArea *d, const char *file, int startX, int startY) {
    return d ? D(d)->patternColor2(file, startX, startY) : 0;
}
int CDrawArea_gradientColor(CDrawArea *d, int startX, int startY, int endX, int endY,
                            int startColor, int endColor) {
    return d ? D(d)->gradientColor(startX, startY, endX, endY, startColor, endColor) : 0;
}
int CDrawArea_gradientColor2(CDrawArea *d, const int *colors, int len, double angle, double scale,
                             int startX, int startY) {
    return d ? D(d)->gradientColor2(IntArray(colors, len), angle, scale, startX, startY) : 0;
}
int CDrawArea_linearGradientColor(CDrawArea *d, int startX, int startY, int endX, int endY,
                                  int startColor, int endColor, bool periodic) {
    if (!d) return 0;
    return D(d)->linearGradientColor(startX, startY, endX, endY, startColor, endColor, periodic);
}
int CDrawArea_linearGradientColor2(CDrawArea *d, int startX, int startY, int endX, int endY,
                                   const int *colors, int len, bool periodic) {
    if (!d) return 0;
    return D(d)->linearGradientColor2(startX, startY, endX, endY, IntArray(colors, len), periodic);
}
int CDrawArea_radialGradientColor(CDrawArea *d, int cx, int cy, int rx, int ry, int startColor,
                                  int endColor, bool periodic) {
    return d ? D(d)->radialGradientColor(cx, cy, rx, ry, startColor, endColor, periodic) : 0;
}
int CDrawArea_radialGradientColor2(CDrawArea *d, int cx, int cy, int rx, int ry, const int *colors,
                                   int len, bool periodic) {
    return d ? D(d)->radialGradientColor2(cx, cy, rx, ry, IntArray(colors, len), periodic) : 0;
}
int CDrawArea_angleGradientColor(CDrawArea *d, double cx, double cy, double startAngle,
                                 double endAngle, double innerRadius, double outerRadius,
                                 const int *colors, int len) {
    if (!d) return 0;
    return D(d)->angleGradientColor(cx, cy, startAngle, endAngle, innerRadius, outerRadius,
                                    IntArray(colors, len));
}
int CDrawArea_lightingColor(CDrawArea *d, int color, const int *lighting, int len, double angle) {
    return d ? D(d)->lightingColor(color, IntArray(lighting, len), angle) : 0;
}
int CDrawArea_linearLightingColor(CDrawArea *d, double x1, double y1, double x2, double y2,
                                  int color, const int *lighting, int len, bool periodic) {
    if (!d) return 0;
    return D(d)->linearLightingColor(x1, y1, x2, y2, color, IntArray(lighting, len), periodic);
}
int CDrawArea_radialLightingColor(CDrawArea *d, int cx, int cy, int rx, int ry, int color,
                                  const int *lighting, int len) {
    return d ? D(d)->radialLightingColor(cx, cy, rx, ry, color, IntArray(lighting, len)) : 0;
}
int CDrawArea_relativeLightingColor(CDrawArea *d, double x1, double y1, double x2, double y2,
                                    int color, const int *lighting, int len, bool periodic) {
    if (!d) return 0;
    return D(d)->relativeLightingColor(x1, y1, x2, y2, color, IntArray(lighting, len), periodic);
}
int CDrawArea_multiLayerColor(CDrawArea *d, const int *layers, int len) {
    return d ? D(d)->multiLayerColor(IntArray(layers, len)) : 0;
}
int CDrawArea_brushedTextureColor(CDrawArea *d, int color, int strength) {
    return d ? D(d)->brushedTextureColor(color, strength) : 0;
}
int CDrawArea_relativeLinearGradient(CDrawArea *d, const int *gradient, int len, double angle,
                                     double radius) {
    return d ? D(d)->relativeLinearGradient(IntArray(gradient, len), angle, radius) : 0;
}
int CDrawArea_relativeRadialGradient(CDrawArea *d, const int *gradient, int len, double radius) {
    return d ? D(d)->relativeRadialGradient(IntArray(gradient, len), radius) : 0;
}
int CDrawArea_xZoneColor(CDrawArea *d, int boundary, int leftColor, int rightColor) {
    return d ? D(d)->xZoneColor(boundary, leftColor, rightColor) : 0;
}
int CDrawArea_yZoneColor(CDrawArea *d, int boundary, int topColor, int bottomColor) {
    return d ? D(d)->yZoneColor(boundary, topColor, bottomColor) : 0;
}
int CDrawArea_transformedColor(CDrawArea *d, int color, const double *m) {
    return d && m ? D(d)->transformedColor(color, m) : 0;
}
int CDrawArea_preciseTransformColor(CDrawArea *d, int color, const double *m) {
    return d && m ? D(d)->preciseTransformColor(color, m) : 0;
}
int CDrawArea_rectColor(CDrawArea *d, double x1, double y1, double x2, double y2, int color) {
    return d ? D(d)->rectColor(x1, y1, x2, y2, color) : 0;
}

void CDrawArea_setDefaultFonts(CDrawArea *d, const char *normal, const char *bold,
                               const char *italic, const char *boldItalic) {
    if (d) D(d)->setDefaultFonts(normal, bold, italic, boldItalic);
}
void CDrawArea_setFontTable(CDrawArea *d, int index, const char *font) {
    if (d) D(d)->setFontTable(index, font);
}
const char *CDrawArea_resolveFont(CDrawArea *d, const char *name) {
    return d ? D(d)->resolveFont(name) : nullptr;
}
char *CDrawArea_getResourceData(CDrawArea *d, const char *id, int *length) {
    if (length) *length = 0;
    int n = 0;
    char *data = d ? D(d)->getResourceData(id, &n) : nullptr;
    if (length) *length = data ? n : 0;
    return data;
}
CDrawArea *CDrawArea_createSubDrawArea(CDrawArea *d, int width, int height) {
    return d ? H(D(d)->createSubDrawArea(width, height)) : nullptr;
}
void CDrawArea_removeObject(CDrawArea *d, int index) {
    if (d) D(d)->removeObject(index);
}
const char *CDrawArea_getFontTableEntry(CDrawArea *d, int index) {
    return d ? D(d)->getFontTableEntry(index) : nullptr;
}
void CDrawArea_beginSuperPixelMode(CDrawArea *d) {
    if (d) D(d)->beginSuperPixelMode();
}
void CDrawArea_setResource(CDrawArea *d, const char *id, const char *data, int length) {
    if (d) D(d)->setResource(id, data, length);
}
void CDrawArea_setResource2(CDrawArea *d, const char *id, CDrawArea *resource) {
    if (d) D(d)->setResource2(id, D(resource));
}
CDrawArea *CDrawArea_getDrawAreaResource(CDrawArea *d, const char *id) {
    return d ? H(D(d)->getDrawAreaResource(id)) : nullptr;
}
void CDrawArea_drawPath(CDrawArea *d, const double *xy, int len, int edgeColor, int fillColor,
                        int lineWidth) {
    if (d) D(d)->drawPath(DoubleArray(xy, len), edgeColor, fillColor, lineWidth);
}
void CDrawArea_smoothPolygon(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                             int edgeColor, int fillColor) {
    if (d) D(d)->smoothPolygon(DoubleArray(x, xLen), DoubleArray(y, yLen), edgeColor, fillColor);
}
char *CDrawArea_loadFile(CDrawArea *d, const char *path, int limit, int *length) {
    int n = 0;
    char *data = d ? D(d)->loadFile(path, limit, &n) : nullptr;
    if (length) *length = data ? n : 0;
    return data;
}

const char *CDrawArea_getResourceId(const char *name) {
    return DrawArea::getResourceId(name);
}
const wchar_t *CDrawArea_getResourceIdw(const wchar_t *name) {
    return DrawArea::getResourceId(name);
}
int CDrawArea_alignX(int w, int align) {
    return DrawArea::alignX(w, align);
}
int CDrawArea_alignY(int h, int align) {
    return DrawArea::alignY(h, align);
}
int CDrawArea_getImageType(int length, const char *data) {
    return data ? DrawArea::getImageType(length, data) : -1;
}
const char *CDrawArea_getMediaType(int imageType) {
    return DrawArea::getMediaType(imageType);
}
void CDrawArea_getImageSize(int length, const char *data, int *width, int *height) {
    int w = 0, h = 0;
    if (data) DrawArea::getImageSize(length, data, &w, &h);
    if (width) *width = w;
    if (height) *height = h;
}
char *CDrawArea_getGlobalResource(const char *id, int *length) {
    int n = 0;
    char *data = DrawArea::getGlobalResource(id, &n);
    if (length) *length = data ? n : 0;
    return data;
}
CDrawArea *CDrawArea_getGlobalDrawAreaResource(const char *id) {
    return H(DrawArea::getGlobalDrawAreaResource(id));
}
void CDrawArea_setGlobalResource(const char *id, const char *data, int length) {
    DrawArea::setGlobalResource(id, data, length);
}
void CDrawArea_setGlobalDrawAreaResource(const char *id, CDrawArea *d) {
    DrawArea::setGlobalDrawAreaResource(id, D(d));
}
int CDrawArea_getPixelLimit(void) {
    return DrawArea::getPixelLimit();
}
int CDrawArea_getFileLimit(void) {
    return DrawArea::getFileLimit();
}
int CDrawArea_getDefaultTextAA(void) {
    return DrawArea::getDefaultTextAA();
}
int CDrawArea_adjustBrightnessARGB(int color, int k) {
    return DrawArea::adjustBrightnessARGB(color, k);
}
int CDrawArea_testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                       char *report) {
    CanvasText::install();
    return DrawArea::testFont(font, fontIndex, fontHeight, fontWidth, report);
}
void CDrawArea_setFontSearchPath(const char *path) {
    CanvasText::install();
    DrawArea::setFontSearchPath(path);
}
const char *CDrawArea_getFontSearchPath(void) {
    CanvasText::install();
    static thread_local std::string path;
    path = DrawArea::getFontSearchPath();
    return path.c_str();
}
void CDrawArea_setCustomFontSearchPath(const char *path) {
    CanvasText::install();
    DrawArea::setCustomFontSearchPath(path);
}
const char *CDrawArea_getCustomFontSearchPath(void) {
    CanvasText::install();
    static thread_local std::string path;
    path = DrawArea::getCustomFontSearchPath();
    return path.c_str();
}
