#pragma once

class MetaText;

// One item of a MultiLine record: a style change, or the next point of the
// line (drawn from the previous point with the current style).
struct MetaLineEntry {
    bool isStyle;
    int color;
    int width;
    double x, y;
};
// Earlier name, still used by the raster; to be removed once it switches.
using MetaLineItem2 = MetaLineEntry;

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
// it.  One operation per record kind, called with the record's arguments in
// record order (colours are final words: plain colours or dynamic handles).
// Every operation does nothing by default, so a back end names only what it
// draws.  Coordinates arrive already multiplied by the scale handed to
// beginPlay.
class DrawBackEnd {
public:
    virtual ~DrawBackEnd() {}

    // Start and end of one run of the interpreter.  A scale other than 1
    // means the scaling interpreter is running.
    virtual void beginPlay(double scale) { (void)scale; }
    virtual void endPlay() {}
    // A fault in the stream, as text; the record is skipped.
    virtual void reportError(const char *message) { (void)message; }

    // Drawing records.
    virtual void setSize(int width, int height, int bgColor) {
        (void)width, (void)height, (void)bgColor;
    }
    virtual void resize(int width, int height) { (void)width, (void)height; }
    virtual void affineTransform(double a, double b, double c, double d, double e, double f,
                                 int bgColor, int filter, double blur) {
        (void)a, (void)b, (void)c, (void)d, (void)e, (void)f, (void)bgColor, (void)filter,
            (void)blur;
    }
    virtual void setClipRect(int left, int top, int right, int bottom) {
        (void)left, (void)top, (void)right, (void)bottom;
    }
    virtual void setBgColor(int color) { (void)color; }
    virtual void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
        (void)r1, (void)r2, (void)r3, (void)r4, (void)color;
    }
    virtual void setBgDropShadow(int a, int b, int c, int d, int color) {
        (void)a, (void)b, (void)c, (void)d, (void)color;
    }
    virtual void line(double x1, double y1, double x2, double y2, int color, int width) {
        (void)x1, (void)y1, (void)x2, (void)y2, (void)color, (void)width;
    }
    // xy holds pointCount pairs x, y.
    virtual void polyLine(int color, int width, const double *xy, int pointCount) {
        (void)color, (void)width, (void)xy, (void)pointCount;
    }
    virtual void multiLine(const MetaLineEntry *items, int count) { (void)items, (void)count; }
    virtual void roundedRect(double x1, double y1, double x2, double y2, int radius, int edgeColor,
                             int fillColor) {
        (void)x1, (void)y1, (void)x2, (void)y2, (void)radius, (void)edgeColor, (void)fillColor;
    }
    // Radii and edge colours: top, right, bottom, left.
    virtual void multiRoundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                                  const int edgeColor[4], int fillColor) {
        (void)x1, (void)y1, (void)x2, (void)y2, (void)radius, (void)edgeColor, (void)fillColor;
    }
    virtual void polygon(int edgeColor, int fillColor, const double *x, const double *y, int n) {
        (void)edgeColor, (void)fillColor, (void)x, (void)y, (void)n;
    }
    virtual void exactPolygon(int fillColor, const double *x, const double *y, int n) {
        (void)fillColor, (void)x, (void)y, (void)n;
    }
    virtual void shape(int fillColor, bool inset, bool keepOutline, const MetaPathItem *items,
                       int count) {
        (void)fillColor, (void)inset, (void)keepOutline, (void)items, (void)count;
    }
    // v holds x, y and intensity of the three vertices.
    virtual void gouraudTriangle(const double v[9], int color) { (void)v, (void)color; }
    virtual void beginSuperPixelMode() {}
    virtual void commitSuperPixels() {}
    virtual void drawText(MetaText *text, int first, int end, int x, int y, int color) {
        (void)text, (void)first, (void)end, (void)x, (void)y, (void)color;
    }
    // The records of a merged list are played between these two calls the
    // first time the list is merged; later merges refer to it by id.
    virtual void beginSymbol(int id) { (void)id; }
    virtual void endSymbol(int id) { (void)id; }
    virtual void mergeWithScaling(int id, int x, int y, int width, int height, int transparency) {
        (void)id, (void)x, (void)y, (void)width, (void)height, (void)transparency;
    }
    virtual void mergeWithRotation(int id, double x, double y, double angle) {
        (void)id, (void)x, (void)y, (void)angle;
    }
    virtual void mergeBitMap(int id, const int *pixels, int count, int width, int x, int y) {
        (void)id, (void)pixels, (void)count, (void)width, (void)x, (void)y;
    }
    // `data` is an encoded image (kPNG ...) that the list keeps.
    virtual void loadStream(int id, const char *data, int length, int imageType, int width,
                            int height) {
        (void)id, (void)data, (void)length, (void)imageType, (void)width, (void)height;
    }
    virtual void initDynamicLayer() {}

    // Dynamic layer roll-back.  Returns true when the back end went back to
    // the picture it saved at initDynamicLayer; it is then told each symbol
    // that the roll-back removed.
    virtual bool restoreSnapshot() { return false; }
    virtual void removeSymbol(int id) { (void)id; }

    // Colour definitions: `handle` is the dynamic colour defined.
    virtual void setSubDrawMode() {}
    virtual void adjustBrightness(int handle, int source, double factor) {
        (void)handle, (void)source, (void)factor;
    }
    // m: a to f of x' = a x + b y + e, y' = c x + d y + f.
    virtual void transformedColor(int handle, int source, const double m[6]) {
        (void)handle, (void)source, (void)m;
    }
    virtual void preciseTransformColor(int handle, int source, const double m[6]) {
        (void)handle, (void)source, (void)m;
    }
    virtual void brushedTextureColor(int handle, int color, int texture) {
        (void)handle, (void)color, (void)texture;
    }
    virtual void multiLayerColor(int handle, const int *layers, int n) {
        (void)handle, (void)layers, (void)n;
    }
    virtual void dashLineColor(int handle, int color, int pattern) {
        (void)handle, (void)color, (void)pattern;
    }
    // pairs: n integers, position (0 to 256) and colour alternately.
    virtual void linearGradientColor(int handle, double x1, double y1, double x2, double y2,
                                     bool periodic, const int *pairs, int n) {
        (void)handle, (void)x1, (void)y1, (void)x2, (void)y2, (void)periodic, (void)pairs, (void)n;
    }
    virtual void radialGradientColor(int handle, int cx, int cy, int rx, int ry, bool periodic,
                                     const int *pairs, int n) {
        (void)handle, (void)cx, (void)cy, (void)rx, (void)ry, (void)periodic, (void)pairs, (void)n;
    }
    virtual void angleGradientColor(int handle, double cx, double cy, double startAngle,
                                    double endAngle, double innerRadius, double outerRadius,
                                    const int *pairs, int n) {
        (void)handle, (void)cx, (void)cy, (void)startAngle, (void)endAngle, (void)innerRadius,
            (void)outerRadius, (void)pairs, (void)n;
    }
    // Coordinates as fractions of the shape that the colour fills.
    virtual void relativeLinearGradientColor(int handle, double x1, double y1, double x2, double y2,
                                             bool periodic, const int *pairs, int n) {
        (void)handle, (void)x1, (void)y1, (void)x2, (void)y2, (void)periodic, (void)pairs, (void)n;
    }
    // lighting: n integers, position (0 to 256) and brightness (1024 = as is).
    virtual void lightingColor(int handle, int color, double x1, double y1, double x2, double y2,
                               bool periodic, const int *lighting, int n) {
        (void)handle, (void)color, (void)x1, (void)y1, (void)x2, (void)y2, (void)periodic,
            (void)lighting, (void)n;
    }
    virtual void linearLightingColor(int handle, int color, double x1, double y1, double x2,
                                     double y2, bool periodic, const int *lighting, int n) {
        (void)handle, (void)color, (void)x1, (void)y1, (void)x2, (void)y2, (void)periodic,
            (void)lighting, (void)n;
    }
    virtual void radialLightingColor(int handle, int color, int cx, int cy, int rx, int ry,
                                     const int *lighting, int n) {
        (void)handle, (void)color, (void)cx, (void)cy, (void)rx, (void)ry, (void)lighting, (void)n;
    }
    virtual void relativeLinearLightingColor(int handle, int color, double x1, double y1, double x2,
                                             double y2, bool periodic, const int *lighting, int n) {
        (void)handle, (void)color, (void)x1, (void)y1, (void)x2, (void)y2, (void)periodic,
            (void)lighting, (void)n;
    }
    // pixels: n colour words, `width` to a row.
    virtual void patternColor(int handle, int startX, int startY, int width, int height,
                              const int *pixels, int n) {
        (void)handle, (void)startX, (void)startY, (void)width, (void)height, (void)pixels, (void)n;
    }
    virtual void patternColor2(int handle, int startX, int startY, const char *fileName) {
        (void)handle, (void)startX, (void)startY, (void)fileName;
    }
    // vertical: the colour changes along y at `boundary` (a pixel).
    virtual void zoneColor(int handle, bool vertical, int boundary, int before, int after) {
        (void)handle, (void)vertical, (void)boundary, (void)before, (void)after;
    }
    virtual void rectColor(int handle, double x1, double y1, double x2, double y2, int color) {
        (void)handle, (void)x1, (void)y1, (void)x2, (void)y2, (void)color;
    }
};
