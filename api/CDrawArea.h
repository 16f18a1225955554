#pragma once

/* The canvas.  A handle from CDrawArea_create holds one reference; retain adds
   one and destroy drops one.  A null handle is ignored and reads as 0. */

#include "api/CTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CDrawArea *CDrawArea_create(void);
void CDrawArea_close(CDrawArea *d);
void CDrawArea_retain(CDrawArea *d);
void CDrawArea_destroy(CDrawArea *d);

void CDrawArea_enableVectorOutput(CDrawArea *d, bool enable);
void CDrawArea_initDynamicLayer(CDrawArea *d);
void CDrawArea_removeDynamicLayer(CDrawArea *d);

void CDrawArea_setSize(CDrawArea *d, int width, int height, int bgColor);
void CDrawArea_resize(CDrawArea *d, int newWidth, int newHeight, int filter, double blur);
int CDrawArea_getWidth(CDrawArea *d);
int CDrawArea_getHeight(CDrawArea *d);
void CDrawArea_setClipRect(CDrawArea *d, int left, int top, int right, int bottom);
void CDrawArea_getClipRect(CDrawArea *d, int *left, int *top, int *right, int *bottom);
void CDrawArea_setBgColor(CDrawArea *d, int color);
void CDrawArea_setBgDropShadow(CDrawArea *d, int color, int offsetX, int offsetY, int blurRadius);
/* radius: four corners from the top left, clockwise. */
void CDrawArea_frameRect(CDrawArea *d, double x1, double y1, double x2, double y2,
                         const int *radius, int n, int color);

void CDrawArea_move(CDrawArea *d, double xOffset, double yOffset, int bgColor, int filter,
                    double blur);
void CDrawArea_rotate(CDrawArea *d, double angle, int bgColor, double cx, double cy, int filter,
                      double blur);
void CDrawArea_hFlip(CDrawArea *d);
void CDrawArea_vFlip(CDrawArea *d);
void CDrawArea_clone(CDrawArea *d, CDrawArea *target, int x, int y, int align, int newWidth,
                     int newHeight, int filter, double blur);

void CDrawArea_pixel(CDrawArea *d, int x, int y, int color);
int CDrawArea_getPixel(CDrawArea *d, int x, int y);
void CDrawArea_commitSuperPixels(CDrawArea *d);

void CDrawArea_hline(CDrawArea *d, int x1, int x2, int y, int color);
void CDrawArea_vline(CDrawArea *d, int y1, int y2, int x, int color);
void CDrawArea_line(CDrawArea *d, double x1, double y1, double x2, double y2, int color,
                    int lineWidth);
void CDrawArea_rawRect(CDrawArea *d, double x1, double y1, double x2, double y2, int color);
void CDrawArea_rawMultiRect(CDrawArea *d, const int *coords, int len, int color);
void CDrawArea_rawExactLine(CDrawArea *d, double x1, double y1, double x2, double y2, int color,
                            int lineWidth);
void CDrawArea_arc(CDrawArea *d, double cx, double cy, double rx, double ry, double a1, double a2,
                   int color);
void CDrawArea_rect(CDrawArea *d, double x1, double y1, double x2, double y2, int edgeColor,
                    int fillColor, int raisedEffect);
/* radius: four corners; edgeColor: top, right, bottom, left. */
void CDrawArea_roundedRect(CDrawArea *d, double x1, double y1, double x2, double y2,
                           const int *radius, const int *edgeColor, int fillColor);
void CDrawArea_setBgRoundedClip(CDrawArea *d, int r1, int r2, int r3, int r4, int color);
void CDrawArea_rawPolyline(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                           int color, int lineWidth);
void CDrawArea_polygon2(CDrawArea *d, const int *x, int xLen, const int *y, int yLen, int edgeColor,
                        int fillColor);
void CDrawArea_polygon(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                       int edgeColor, int fillColor);
void CDrawArea_curve(CDrawArea *d, const double *x, int xLen, const double *y, int yLen, int color,
                     int lineWidth);
void CDrawArea_polyShape(CDrawArea *d, const double *xy, int len, int edgeColor, int fillColor);
void CDrawArea_surface(CDrawArea *d, double x1, double y1, double x2, double y2, double depthX,
                       double depthY, int edgeColor, int fillColor);
void CDrawArea_sector(CDrawArea *d, double cx, double cy, double rx, double ry, double a1,
                      double a2, int edgeColor, int fillColor);
void CDrawArea_cylinder(CDrawArea *d, double cx, double cy, double rx, double ry, double a1,
                        double a2, double depthX, double depthY, int edgeColor, int fillColor);
void CDrawArea_circle(CDrawArea *d, double cx, double cy, double rx, double ry, int edgeColor,
                      int fillColor);
void CDrawArea_ringSector(CDrawArea *d, double cx, double cy, double rx, double ry, double rx2,
                          double ry2, double a1, double a2, int edgeColor, int fillColor);
void CDrawArea_ring(CDrawArea *d, double cx, double cy, double rx, double ry, double rx2,
                    double ry2, int edgeColor, int fillColor);
void CDrawArea_gouraudTriangle(CDrawArea *d, double x0, double y0, double i0, double x1, double y1,
                               double i1, double x2, double y2, double i2, int color);
void CDrawArea_fill2(CDrawArea *d, int x, int y, int color, int borderColor);
void CDrawArea_fill(CDrawArea *d, int x, int y, int color);

/* The text forms hand the caller a text that CTTFText_destroy releases. */
CTTFText *CDrawArea_text(CDrawArea *d, const char *str, const char *font, double fontSize);
CTTFText *CDrawArea_textw(CDrawArea *d, const wchar_t *str, const char *font, double fontSize);
CTTFText *CDrawArea_text2(CDrawArea *d, const char *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, bool vertical);
CTTFText *CDrawArea_text2w(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                           double fontHeight, double fontWidth, double angle, bool vertical);
void CDrawArea_text3(CDrawArea *d, const char *str, const char *font, double fontSize, int x, int y,
                     int color);
void CDrawArea_text3w(CDrawArea *d, const wchar_t *str, const char *font, double fontSize, int x,
                      int y, int color);
void CDrawArea_text4(CDrawArea *d, const char *str, const char *font, int fontIndex,
                     double fontHeight, double fontWidth, double angle, bool vertical, int x, int y,
                     int color, int alignment);
void CDrawArea_text4w(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                      double fontHeight, double fontWidth, double angle, bool vertical, int x,
                      int y, int color, int alignment);
void CDrawArea_textBlock(CDrawArea *d, const char *str, const char *font, int fontIndex,
                         double fontHeight, double fontWidth, double angle, int x, int y,
                         int maxWidth, int maxLines, int color, int alignment);
void CDrawArea_textBlockw(CDrawArea *d, const wchar_t *str, const char *font, int fontIndex,
                          double fontHeight, double fontWidth, double angle, int x, int y,
                          int maxWidth, int maxLines, int color, int alignment);
void CDrawArea_renderVSML(CDrawArea *d, const char *markup);

void CDrawArea_merge(CDrawArea *d, CDrawArea *source, int x, int y, int align, int transparency);
void CDrawArea_mergeScaled(CDrawArea *d, CDrawArea *source, int x, int y, int width, int height,
                           int transparency);
void CDrawArea_mergeRotated(CDrawArea *d, CDrawArea *source, double x, double y, double angle);
void CDrawArea_tile(CDrawArea *d, CDrawArea *source, int transparency);

void CDrawArea_setSearchPath(CDrawArea *d, const char *path);
bool CDrawArea_loadGIF(CDrawArea *d, const char *path);
bool CDrawArea_loadPNG(CDrawArea *d, const char *path);
bool CDrawArea_loadJPG(CDrawArea *d, const char *path);
bool CDrawArea_loadBMP(CDrawArea *d, const char *path);
bool CDrawArea_loadWMP(CDrawArea *d, const char *path);
bool CDrawArea_load(CDrawArea *d, const char *path);
bool CDrawArea_load2(CDrawArea *d, int length, const char *data, int imgType);

void CDrawArea_rAffineTransform(CDrawArea *d, double a, double b, double c, double dd, double e,
                                double f, int bgColor, int filter, double blur);
void CDrawArea_affineTransform(CDrawArea *d, double a, double b, double c, double dd, double e,
                               double f, int bgColor, int filter, double blur);
void CDrawArea_shearTransform(CDrawArea *d, double xShear, double yShear, int bgColor, int filter,
                              double blur);
void CDrawArea_waveTransform(CDrawArea *d, double period, double amplitude, double phase,
                             int bgColor);
void CDrawArea_sphereTransform(CDrawArea *d, int bgColor);
void CDrawArea_hCylinderTransform(CDrawArea *d, int bgColor);
void CDrawArea_vCylinderTransform(CDrawArea *d, int bgColor);
void CDrawArea_vTriangleTransform(CDrawArea *d, int bgColor);
void CDrawArea_hTriangleTransform(CDrawArea *d, int bgColor);

bool CDrawArea_out(CDrawArea *d, const char *path);
bool CDrawArea_outGIF(CDrawArea *d, const char *path);
bool CDrawArea_outPNG(CDrawArea *d, const char *path);
bool CDrawArea_outJPG(CDrawArea *d, const char *path, int quality);
bool CDrawArea_outWMP(CDrawArea *d, const char *path);
bool CDrawArea_outBMP(CDrawArea *d, const char *path);
bool CDrawArea_outSVG(CDrawArea *d, const char *path, const char *options);
bool CDrawArea_outPDF(CDrawArea *d, const char *path);
bool CDrawArea_outAGF(CDrawArea *d, const char *path);
/* In-memory outputs: valid until the next output call on the canvas. */
void CDrawArea_outGIF2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outPNG2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outJPG2(CDrawArea *d, int quality, const char **data, int *len);
void CDrawArea_outWMP2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outBMP2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outSVG2(CDrawArea *d, const char *options, const char **data, int *len);
void CDrawArea_outPDF2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outAGF2(CDrawArea *d, const char **data, int *len);
void CDrawArea_outAlpha2(CDrawArea *d, const char **data, int *len);
void CDrawArea_setOutputOptions(CDrawArea *d, const char *options);

void CDrawArea_setPaletteMode(CDrawArea *d, int value);
void CDrawArea_setDitherMethod(CDrawArea *d, int value);
void CDrawArea_setTransparentColor(CDrawArea *d, int color);
void CDrawArea_setAntiAliasText(CDrawArea *d, int value);
void CDrawArea_setAntiAlias(CDrawArea *d, bool shapeAntiAlias, int textAntiAlias);
void CDrawArea_setInterlace(CDrawArea *d, int value);
void CDrawArea_setColorTable(CDrawArea *d, int index, int color);
void CDrawArea_setColorTable2(CDrawArea *d, const int *colors, int len, int offset);
void CDrawArea_setColorTableRaw(CDrawArea *d, const int *colors, int len, int offset);
int CDrawArea_getARGBColor(CDrawArea *d, int color);
/* Translated copies in a block that the next call reuses. */
const int *CDrawArea_mapColors(CDrawArea *d, const int *colors, int len);
const int *CDrawArea_mapColorPairs(CDrawArea *d, const int *pairs, int len);
bool CDrawArea_isOpaque(CDrawArea *d, int color);
bool CDrawArea_isSpecialColor(CDrawArea *d, int color);
int CDrawArea_halfColor(CDrawArea *d, int color);
int CDrawArea_adjustBrightness(CDrawArea *d, int color, double brightness);
int CDrawArea_allocDynColor(CDrawArea *d);
bool CDrawArea_isDynamicColor(CDrawArea *d, int color);
void CDrawArea_freeDynColor(CDrawArea *d, int color);
void CDrawArea_reserveDynColor(CDrawArea *d, int color);

int CDrawArea_dashLineColor(CDrawArea *d, int color, int patternCode);
int CDrawArea_patternColor(CDrawArea *d, const int *colors, int len, int height, int startX,
                           int startY);
int CDrawArea_patternColor2(CDrawArea *d, const char *file, int startX, int startY);
int CDrawArea_gradientColor(CDrawArea *d, int startX, int startY, int endX, int endY,
                            int startColor, int endColor);
int CDrawArea_gradientColor2(CDrawArea *d, const int *colors, int len, double angle, double scale,
                             int startX, int startY);
int CDrawArea_linearGradientColor(CDrawArea *d, int startX, int startY, int endX, int endY,
                                  int startColor, int endColor, bool periodic);
int CDrawArea_linearGradientColor2(CDrawArea *d, int startX, int startY, int endX, int endY,
                                   const int *colors, int len, bool periodic);
int CDrawArea_radialGradientColor(CDrawArea *d, int cx, int cy, int rx, int ry, int startColor,
                                  int endColor, bool periodic);
int CDrawArea_radialGradientColor2(CDrawArea *d, int cx, int cy, int rx, int ry, const int *colors,
                                   int len, bool periodic);
int CDrawArea_angleGradientColor(CDrawArea *d, double cx, double cy, double startAngle,
                                 double endAngle, double innerRadius, double outerRadius,
                                 const int *colors, int len);
int CDrawArea_lightingColor(CDrawArea *d, int color, const int *lighting, int len, double angle);
int CDrawArea_linearLightingColor(CDrawArea *d, double x1, double y1, double x2, double y2,
                                  int color, const int *lighting, int len, bool periodic);
int CDrawArea_radialLightingColor(CDrawArea *d, int cx, int cy, int rx, int ry, int color,
                                  const int *lighting, int len);
int CDrawArea_relativeLightingColor(CDrawArea *d, double x1, double y1, double x2, double y2,
                                    int color, const int *lighting, int len, bool periodic);
int CDrawArea_multiLayerColor(CDrawArea *d, const int *layers, int len);
int CDrawArea_brushedTextureColor(CDrawArea *d, int color, int strength);
int CDrawArea_relativeLinearGradient(CDrawArea *d, const int *gradient, int len, double angle,
                                     double radius);
int CDrawArea_relativeRadialGradient(CDrawArea *d, const int *gradient, int len, double radius);
int CDrawArea_xZoneColor(CDrawArea *d, int boundary, int leftColor, int rightColor);
int CDrawArea_yZoneColor(CDrawArea *d, int boundary, int topColor, int bottomColor);
/* m: the six numbers a, b, c, d, e, f of x' = a x + b y + e, y' = c x + d y + f. */
int CDrawArea_transformedColor(CDrawArea *d, int color, const double *m);
int CDrawArea_preciseTransformColor(CDrawArea *d, int color, const double *m);
int CDrawArea_rectColor(CDrawArea *d, double x1, double y1, double x2, double y2, int color);

void CDrawArea_setDefaultFonts(CDrawArea *d, const char *normal, const char *bold,
                               const char *italic, const char *boldItalic);
void CDrawArea_setFontTable(CDrawArea *d, int index, const char *font);
const char *CDrawArea_resolveFont(CDrawArea *d, const char *name);
/* A copy for the caller to give back with CVistrel_free; null when not found. */
char *CDrawArea_getResourceData(CDrawArea *d, const char *id, int *length);
/* A canvas of its own list sharing this one's colours; the caller destroys it. */
CDrawArea *CDrawArea_createSubDrawArea(CDrawArea *d, int width, int height);
void CDrawArea_removeObject(CDrawArea *d, int index);
const char *CDrawArea_getFontTableEntry(CDrawArea *d, int index);
void CDrawArea_beginSuperPixelMode(CDrawArea *d);
void CDrawArea_setResource(CDrawArea *d, const char *id, const char *data, int length);
void CDrawArea_setResource2(CDrawArea *d, const char *id, CDrawArea *resource);
/* Borrowed: the canvas that holds it keeps it alive. */
CDrawArea *CDrawArea_getDrawAreaResource(CDrawArea *d, const char *id);
void CDrawArea_drawPath(CDrawArea *d, const double *xy, int len, int edgeColor, int fillColor,
                        int lineWidth);
void CDrawArea_smoothPolygon(CDrawArea *d, const double *x, int xLen, const double *y, int yLen,
                             int edgeColor, int fillColor);
/* A copy for the caller to give back with CVistrel_free; null on failure. */
char *CDrawArea_loadFile(CDrawArea *d, const char *path, int limit, int *length);

const char *CDrawArea_getResourceId(const char *name);
const wchar_t *CDrawArea_getResourceIdw(const wchar_t *name);
int CDrawArea_alignX(int w, int align);
int CDrawArea_alignY(int h, int align);
int CDrawArea_getImageType(int length, const char *data);
const char *CDrawArea_getMediaType(int imageType);
void CDrawArea_getImageSize(int length, const char *data, int *width, int *height);
/* A copy for the caller to give back with CVistrel_free; null when not found. */
char *CDrawArea_getGlobalResource(const char *id, int *length);
CDrawArea *CDrawArea_getGlobalDrawAreaResource(const char *id);
void CDrawArea_setGlobalResource(const char *id, const char *data, int length);
void CDrawArea_setGlobalDrawAreaResource(const char *id, CDrawArea *d);
int CDrawArea_getPixelLimit(void);
int CDrawArea_getFileLimit(void);
int CDrawArea_getDefaultTextAA(void);
int CDrawArea_adjustBrightnessARGB(int color, int k);
/* report: at least 2048 bytes. */
int CDrawArea_testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                       char *report);
void CDrawArea_setFontSearchPath(const char *path);
/* Valid until the next call of the same function on this thread. */
const char *CDrawArea_getFontSearchPath(void);
void CDrawArea_setCustomFontSearchPath(const char *path);
const char *CDrawArea_getCustomFontSearchPath(void);

#ifdef __cplusplus
}
#endif
