#pragma once

// The record kinds of the display list, each declared once, in one row: its
// name, opcode, argument format, the arguments the scaling interpreter
// multiplies, how the player reads it, and the back-end operation it plays as,
// with that operation's parameters.  The opcode enum, the rows of the listing
// and the readers, the back-end interface (DrawBackEnd), the typed record
// writer and the player's dispatch are all made from these rows.
//
// Format letters: b boolean, i integer, x colour word, d double, s bytes, w
// 16-bit units, D doubles, I integers, X colour words; "?" is a layout of its
// own (below).  In `scaled`, 's' marks an argument the scaling interpreter
// multiplies (an array: every element).
//
// Reading: an Args record is read by its format, one parameter per letter; a
// fixed array parameter takes one letter per element, and D, I and X arrive as
// views.  An Own record has a reader of its own in the player.
//
// Drawing records are 0 to 25.  Colour records (top bit set) define the
// dynamic colour `handle` and leave a pending line batch open.
//
// Notes on parameters: SetBgDropShadow's fourth integer is unused.  Radii and
// edge colours of MultiRoundedRect run top, right, bottom, left.  PolyLine's
// xy holds x and y alternately.  GouraudShadedTriangle's v holds x, y and
// intensity of each vertex.  A transform m is a to f of x' = a x + b y + e,
// y' = c x + d y + f.  Gradient pairs are a position (0 to 256) and a colour
// alternately; lighting pairs a position and a brightness (1024 = unchanged).
// Relative gradients and lightings take fractions of the canvas.  A pattern's
// pixels run row by row, `width` to a row.  ZoneColor with `vertical` changes
// along y at pixel `boundary`.  DefineSymbol plays as beginSymbol, the
// symbol's records and DrawBackEnd::endSymbol.  MergeBitMap's pixels and
// LoadStream's encoded image (kPNG ...) are the list's symbols.  MergeAtPoints
// puts one symbol, unscaled at width by height, with its top-left corner at
// each point of `points` (x and y alternately): a scatter of marks in one
// record.
//
// clang-format off
#define VISTREL_META_DRAWING_RECORDS(X) \
    X(SetSize,               0, "iix",           "ss.",           Args, setSize,             (int width, int height, int bgColor)) \
    X(Resize,                1, "ii",            "ss",            Args, resize,              (int width, int height)) \
    X(AffineTransform,       2, "ddddddxid",     "....ss...",     Args, affineTransform,     (double a, double b, double c, double d, double e, double f, int bgColor, int filter, double blur)) \
    X(SetClipRect,           3, "iiii",          "ssss",          Args, setClipRect,         (int left, int top, int right, int bottom)) \
    X(SetBgColor,            4, "x",             ".",             Args, setBgColor,          (int color)) \
    X(SetBgRoundedClip,      5, "iiiix",         "ssss.",         Args, setBgRoundedClip,    (int r1, int r2, int r3, int r4, int color)) \
    X(SetBgDropShadow,       6, "iiiix",         "ssss.",         Args, setBgDropShadow,     (int offsetX, int offsetY, int blurRadius, int unused, int color)) \
    X(Line,                  7, "ddddxi",        "ssss.s",        Args, line,                (double x1, double y1, double x2, double y2, int color, int width)) \
    X(PolyLine,              8, "xiD",           ".ss",           Args, polyLine,            (int color, int width, DoubleArray xy)) \
    X(MultiLine,             9, "?",             ".",             Own,  multiLine,           (const MetaLineEntry *items, int count)) \
    X(RoundedRect,          10, "ddddixx",       "sssss..",       Args, roundedRect,         (double x1, double y1, double x2, double y2, int radius, int edgeColor, int fillColor)) \
    X(MultiRoundedRect,     11, "ddddiiiixxxxx", "ssssssss.....", Args, multiRoundedRect,    (double x1, double y1, double x2, double y2, const int (&radius)[4], const int (&edgeColor)[4], int fillColor)) \
    X(Polygon,              12, "xxDD",          "..ss",          Args, polygon,             (int edgeColor, int fillColor, DoubleArray x, DoubleArray y)) \
    X(ExactPolygon,         13, "xDD",           ".ss",           Args, exactPolygon,        (int fillColor, DoubleArray x, DoubleArray y)) \
    X(Shape,                14, "?",             ".",             Own,  shape,               (int fillColor, bool inset, bool keepOutline, const MetaPathItem *items, int count)) \
    X(GouraudShadedTriangle,15, "dddddddddx",    "ss.ss.ss..",    Args, gouraudTriangle,     (const double (&v)[9], int color)) \
    X(BeginSuperPixelMode,  16, "",              "",              Args, beginSuperPixelMode, ()) \
    X(CommitSuperPixels,    17, "",              "",              Args, commitSuperPixels,   ()) \
    X(Text,                 18, "?",             ".",             Own,  drawText,            (const GlyphText &text)) \
    X(DefineSymbol,         19, "?",             ".",             Own,  beginSymbol,         (int id)) \
    X(MergeWithScaling,     20, "iiiiii",        ".ssss.",        Args, mergeWithScaling,    (int id, int x, int y, int width, int height, int transparency)) \
    X(MergeWithRotation,    21, "iddd",          ".ss.",          Args, mergeWithRotation,   (int id, double x, double y, double angle)) \
    X(MergeBitMap,          22, "iiii",          "..ss",          Own,  mergeBitMap,         (int id, IntArray pixels, int width, int x, int y)) \
    X(LoadStream,           23, "iiii",          "....",          Own,  loadStream,          (int id, const char *data, int length, int imageType, int width, int height)) \
    X(InitDynamicLayer,     24, "",              "",              Args, initDynamicLayer,    ()) \
    X(MergeAtPoints,        25, "iiiI",          ".sss",          Args, mergeAtPoints,       (int id, int width, int height, IntArray points))

#define VISTREL_META_COLOR_RECORDS(X) \
    X(SetSubDrawMode,              0x80000000u, "",         "",         Args, setSubDrawMode,              ()) \
    X(AdjustBrightness,            0x80000001u, "xxd",      "...",      Args, adjustBrightness,            (int handle, int source, double factor)) \
    X(TransformedColor,            0x80000002u, "xxdddddd", "......ss", Args, transformedColor,            (int handle, int source, const double (&m)[6])) \
    X(PreciseTransformColor,       0x80000003u, "xxdddddd", "......ss", Args, preciseTransformColor,       (int handle, int source, const double (&m)[6])) \
    X(BrushedTextureColor,         0x80000004u, "xxi",      "...",      Args, brushedTextureColor,         (int handle, int color, int texture)) \
    X(MultiLayerColor,             0x80000005u, "xX",       "..",       Args, multiLayerColor,             (int handle, IntArray layers)) \
    X(DashLineColor,               0x80000006u, "xxi",      "...",      Args, dashLineColor,               (int handle, int color, int pattern)) \
    X(LinearGradientColor,         0x80000007u, "xddddbX",  ".ssss..",  Args, linearGradientColor,         (int handle, double x1, double y1, double x2, double y2, bool periodic, IntArray pairs)) \
    X(RadialGradientColor,         0x80000008u, "xiiiibX",  ".ssss..",  Args, radialGradientColor,         (int handle, int cx, int cy, int rx, int ry, bool periodic, IntArray pairs)) \
    X(AngleGradientColor,          0x80000009u, "xddddddX", ".ss..ss.", Args, angleGradientColor,          (int handle, double cx, double cy, double startAngle, double endAngle, double innerRadius, double outerRadius, IntArray pairs)) \
    X(RelativeLinearGradientColor, 0x8000000au, "xddddbX",  ".......",  Args, relativeLinearGradientColor, (int handle, double x1, double y1, double x2, double y2, bool periodic, IntArray pairs)) \
    X(LightingColor,               0x8000000bu, "xxddddbI", "..ssss..", Args, lightingColor,               (int handle, int color, double x1, double y1, double x2, double y2, bool periodic, IntArray lighting)) \
    X(LinearLightingColor,         0x8000000cu, "xxddddbI", "..ssss..", Args, linearLightingColor,         (int handle, int color, double x1, double y1, double x2, double y2, bool periodic, IntArray lighting)) \
    X(RadialLightingColor,         0x8000000du, "xxiiiiI",  "..ssss.",  Args, radialLightingColor,         (int handle, int color, int cx, int cy, int rx, int ry, IntArray lighting)) \
    X(RelativeLinearLightingColor, 0x8000000eu, "xxddddbI", "........", Args, relativeLinearLightingColor, (int handle, int color, double x1, double y1, double x2, double y2, bool periodic, IntArray lighting)) \
    X(PatternColor,                0x8000000fu, "xiiiiX",   ".ss...",   Args, patternColor,                (int handle, int startX, int startY, int width, int height, IntArray pixels)) \
    X(PatternColor2,               0x80000010u, "xiis",     ".ss.",     Args, patternColor2,               (int handle, int startX, int startY, const char *fileName)) \
    X(ZoneColor,                   0x80000011u, "xbixx",    "..s..",    Args, zoneColor,                   (int handle, bool vertical, int boundary, int before, int after)) \
    X(RectColor,                   0x80000012u, "xddddx",   ".ssss.",   Args, rectColor,                   (int handle, double x1, double y1, double x2, double y2, int color))
// clang-format on

#define VISTREL_META_RECORDS(X) VISTREL_META_DRAWING_RECORDS(X) VISTREL_META_COLOR_RECORDS(X)

enum MetaOpcode : unsigned {
#define VISTREL_META_OPCODE(name, code, format, scaled, reading, operation, params) \
    kOp##name = code,
    VISTREL_META_RECORDS(VISTREL_META_OPCODE)
#undef VISTREL_META_OPCODE
};

// The top bit of the colour records.
constexpr unsigned kOpColorFlag = 0x80000000u;

// Item kinds inside a Shape record, and inside a MultiLine record.
enum MetaPathType : unsigned { kPathLine = 0, kPathArc = 1, kPathArc2 = 2 };
enum MetaLineItem : unsigned { kLineItemStyle = 0, kLineItemCoor = 1 };

// One row of a record table, as the listing and the readers use it.
struct MetaRecordInfo {
    unsigned code;
    const char *name;
    const char *format;
    const char *scaled;
};

// Layouts of the records whose format is "?": Text is the symbol id, first
// item, end item, then x, y and colour; DefineSymbol is the symbol id; Shape
// starts with the fill colour and the flags inset and keepOutline, then path
// items; MultiLine is a series of line items.
constexpr const char *kTextLayout = "iiiiix";
constexpr const char *kTextScaled = "...ss.";
constexpr const char *kDefineSymbolLayout = "i";
constexpr const char *kShapeHeader = "xbb";

inline bool isColorOpcode(unsigned opcode) {
    return (opcode & kOpColorFlag) != 0;
}

// Null for a code outside the tables.
const MetaRecordInfo *findMetaOpcode(unsigned opcode);
const MetaRecordInfo *findMetaPathType(unsigned type);
const MetaRecordInfo *findMetaLineItem(unsigned item);
