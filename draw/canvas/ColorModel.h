#pragma once

#include <utility>
#include <vector>

#include "foundation/ArrayViews.h"

class MetaDraw;

// The colour state of a canvas: the palette, the allocator of dynamic colour
// handles and the cache of colours derived from others.  Translates colour
// words and makes dynamic colours, whose definitions it records into the
// display list it is given (a null list makes handles without records).
//
// Every operation takes and returns canvas colour words, so a canvas forwards
// each of its colour operations here unchanged.
class ColorModel {
public:
    explicit ColorModel(MetaDraw *list);

    void setMetaDraw(MetaDraw *list) { metaDraw = list; }
    MetaDraw *getMetaDraw() const { return metaDraw; }

    // Palette.  Colours are translated as they are stored; the table grows as
    // needed up to kMaxColorTableSize entries, gaps filled with kTransparent.
    void setColorTable(int index, int color);
    void setColorTable(IntArray colors, int offset);
    void setColorTable(const int *colors, int count, int offset);
    // Stores the words as they are, without translation.
    void setColorTableRaw(IntArray colors, int offset);
    int getColorTableSize() const { return (int)colorTable.size(); }

    // The final word of a colour: palette words resolved, metal codes made into
    // dynamic colours, plain colours and dynamic handles kept.
    int getARGBColor(int color);
    // Translated copies in a scratch block that the next call reuses.  The pair
    // form translates the odd entries (position, colour, position, colour...).
    const int *mapColors(IntArray colors);
    const int *mapColorPairs(IntArray pairs);

    bool isOpaque(int color);
    // A reserved word other than kTransparent: palette, dynamic or metal.
    static bool isSpecialColor(int word);

    int halfColor(int color);
    int adjustBrightness(int color, double brightness);
    // k is the brightness in 1/1024 units.
    static int adjustBrightnessARGB(int color, int k);

    // Dynamic handles.  allocDynColor gives kTransparent when no handle is left.
    int allocDynColor();
    void freeDynColor(int handle);
    // Keeps the allocator away from a handle made elsewhere.
    void reserveDynColor(int handle);
    int getNextDynColor() const { return nextDynColor; }
    int getDerivedColorCount() const { return (int)derivedColors.size(); }
    // Drops what was made after a dynamic layer's mark: handles from dynColorMark
    // up and derived colours from derivedColorMark up.
    void cutBack(int dynColorMark, int derivedColorMark);

    // Constructors.  Each returns a dynamic handle, or the colour itself where
    // no new colour is needed, or kTransparent for bad arguments.
    // pattern: run lengths from the top byte down, on, off, on, off.
    int dashLineColor(int color, int pattern);
    int patternColor(IntArray colors, int height, int startX, int startY);
    int patternColor(const char *file, int startX, int startY);
    // Two colours from (startX, startY) to (endX, endY); the colour itself when
    // both are equal.
    int gradientColor(int startX, int startY, int endX, int endY, int startColor, int endColor);
    // A periodic gradient of length 256 * scale along angle (degrees, 90 is
    // down) from (startX, startY).
    int gradientColor(IntArray colors, double angle, double scale, int startX, int startY);
    int linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                            int endColor, bool periodic);
    // colors: an even count is (position, colour) pairs, an odd count colours
    // spread evenly.
    int linearGradientColor(int startX, int startY, int endX, int endY, IntArray colors,
                            bool periodic);
    int radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                            bool periodic);
    int radialGradientColor(int cx, int cy, int rx, int ry, IntArray colors, bool periodic);
    int angleGradientColor(double cx, double cy, double startAngle, double endAngle,
                           double innerRadius, double outerRadius, IntArray colors);
    // Lighting pairs are (position 0 to 256, brightness in 1/1024).  This form is
    // periodic with length 256 along angle from the origin.
    int lightingColor(int color, IntArray lighting, double angle);
    int linearLightingColor(double x1, double y1, double x2, double y2, int color,
                            IntArray lighting, bool periodic);
    int radialLightingColor(int cx, int cy, int rx, int ry, int color, IntArray lighting);
    // Coordinates are fractions of the canvas.
    int relativeLightingColor(double x1, double y1, double x2, double y2, int color,
                              IntArray lighting, bool periodic);
    // The layers from the bottom up.
    int multiLayerColor(IntArray layers);
    // strength: how much the brushed stripes change the brightness.
    int brushedTextureColor(int color, int strength);
    // A gradient across the canvas along angle (degrees, 0 left to right, 90
    // down) through its centre; radius is the half length as a fraction of the
    // canvas, negative to reach its edges.
    int relativeLinearGradient(IntArray gradient, double angle, double radius);
    // A gradient out of the centre of a width by height canvas; a negative
    // radius is half the shorter side.
    int relativeRadialGradient(IntArray gradient, double radius, int width, int height);
    // The colour changes at pixel `boundary`: along x for xZoneColor, along y
    // for yZoneColor.
    int xZoneColor(int boundary, int leftColor, int rightColor);
    int yZoneColor(int boundary, int topColor, int bottomColor);
    // The colour at the pixel mapped through x' = a x + b y + c, y' = d x + e y + f.
    int transformedColor(int color, const double m[6]);
    int preciseTransformColor(int color, const double m[6]);
    int rectColor(double x1, double y1, double x2, double y2, int color);

private:
    struct DerivedColor {
        unsigned long long key;
        int handle;
    };

    // Makes room for count entries from offset (masked to 16 bits); returns the
    // end of the entries that fit, at most the offset when none does.
    int growTable(int offset, int count);
    int resolvePalette(int index) const;
    int decodeMetal(int code);
    bool isLiveHandle(int word) const;
    int findDerived(unsigned long long key) const;
    void addDerived(unsigned long long key, int handle);
    // Translated gradient pairs from colours or pairs; false when empty.
    bool toGradientPairs(IntArray colors, std::vector<int> &pairs);
    int *scratch(int n);

    // Allocate a handle and record its definition through `define`, unless
    // the arguments are bad.
    template <class Define>
    int makeColor(Define define);
    template <class Define>
    int makeFromColor(int color, Define define);
    template <class Define>
    int makeGradient(IntArray colors, Define define);
    template <class Define>
    int makeLighting(int color, IntArray lighting, Define define);

    MetaDraw *metaDraw;
    std::vector<int> colorTable;
    int nextDynColor;
    int freeDynColorSlot;
    std::vector<DerivedColor> derivedColors;
    std::vector<int> tempColors;
};
