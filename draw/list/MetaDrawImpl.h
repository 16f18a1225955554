#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "draw/list/MetaDraw.h"
#include "draw/list/MetaRecordCall.h"

class MetaBrush;

class MetaDrawImpl : public MetaDraw {
public:
    enum SymbolKind { kListSymbol = 0, kPixelSymbol = 1, kImageSymbol = 2, kTextSymbol = 3 };
    struct Symbol {
        int kind;
        void *object;
        int length;
    };

    explicit MetaDrawImpl(MetaDrawOwner *owner);
    ~MetaDrawImpl() override;
    MetaDrawImpl(const MetaDrawImpl &) = delete;
    MetaDrawImpl &operator=(const MetaDrawImpl &) = delete;

    MetaDrawOwner *getOwner() const override { return owner; }
    void destroyList() override { delete this; }
    void freeze() override;
    bool isFrozen() const override { return frozen; }
    int getEndPos() const override { return readEnd(); }

    void setOutputOptions(const char *options) override;
    void setOptionParent(MetaDraw *parent) override;
    void setParentList(MetaDraw *parent) override;
    const char *getOption(const char *name) const override;
    double getOptionNumber(const char *name, double defaultValue) const override;

    void writeListing(qlx::ostream &out) override;
    int play(DrawBackEnd *backEnd, int fromPos) override;
    void playAll(DrawBackEnd *backEnd) override;

    int markDynamicLayer() override;
    int rollback(DrawBackEnd *raster) override;

    void setSize(int width, int height, int bgColor) override;
    void resize(int width, int height) override;
    void affineTransform(double a, double b, double c, double d, double e, double f, int bgColor,
                         int filter, double blur) override;
    void setClipRect(int left, int top, int right, int bottom) override;
    void setBgColor(int color) override;
    void setBgRoundedClip(int r1, int r2, int r3, int r4, int color) override;
    void setBgDropShadow(int a, int b, int c, int d, int color) override;
    void line(double x1, double y1, double x2, double y2, int color, int width) override;
    void addLine(int color, int width, double x1, double y1, double x2, double y2) override;
    void flushLines() override;
    void moveLineTo(int color, int width, double x, double y) override;
    void roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                     const int edgeColor[4], int fillColor) override;
    void polygon(const double *x, const double *y, int n, int edgeColor, int fillColor) override;
    void exactPolygon(const double *x, const double *y, int n, int fillColor) override;
    MetaShape *createShape() override;
    void gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                         double x2, double y2, double i2, int color) override;
    void beginSuperPixelMode() override;
    void commitSuperPixels() override;
    void drawText(MetaText *text, int first, int end, int x, int y, int color) override;
    void mergeScaled(MetaDraw *source, int x, int y, int width, int height,
                     int transparency) override;
    void mergeRotated(MetaDraw *source, double x, double y, double angle) override;
    void mergeAtPoints(MetaDraw *source, int width, int height, IntArray points) override;
    void mergeBitMap(const int *pixels, int count, int width, int x, int y) override;
    void loadStream(char *data, int length, int imageType, int width, int height) override;
    void setSubDrawMode() override;
    void interLineFill(bool swapXY, const LineValues *lineA, const LineValues *lineB, int colorAB,
                       int colorBA, double start, double step, double offsetX, double offsetY,
                       int count, double rangeMin, double rangeMax) override;

    void defineTransformed(int handle, int source, const double m[6]) override;
    void definePreciseTransform(int handle, int source, const double m[6]) override;
    void defineBrushedTexture(int handle, int color, int texture) override;
    void defineMultiLayer(int handle, IntArray layers) override;
    void defineLinearGradient(int handle, double x1, double y1, double x2, double y2, bool periodic,
                              IntArray pairs) override;
    void defineRadialGradient(int handle, int cx, int cy, int rx, int ry, bool periodic,
                              IntArray pairs) override;
    void defineAngleGradient(int handle, double cx, double cy, double startAngle, double endAngle,
                             double innerRadius, double outerRadius, IntArray pairs) override;
    void defineLighting(int handle, int color, double x1, double y1, double x2, double y2,
                        bool periodic, IntArray lighting) override;
    void defineLinearLighting(int handle, int color, double x1, double y1, double x2, double y2,
                              bool periodic, IntArray lighting) override;
    void defineRadialLighting(int handle, int color, int cx, int cy, int rx, int ry,
                              IntArray lighting) override;
    void definePattern(int handle, int startX, int startY, int width, int height,
                       IntArray pixels) override;
    void definePatternFile(int handle, int startX, int startY, const char *file) override;
    void defineZone(int handle, bool vertical, int boundary, int before, int after) override;
    void defineRect(int handle, double x1, double y1, double x2, double y2, int color) override;
    void defineBrightness(int handle, int source, double factor) override;
    void defineDash(int handle, int color, int pattern) override;
    void defineRelativeGradient(int handle, double x1, double y1, double x2, double y2,
                                bool periodic, IntArray pairs) override;
    void defineRelativeLighting(int handle, int color, double x1, double y1, double x2, double y2,
                                bool periodic, IntArray lighting) override;
    void defineXYZone(int handle, const PixelScale *scale, bool vertical, double value, int before,
                      int after) override;
    void defineScaleColor(int handle, const PixelScale *scale, bool vertical, DoubleArray values,
                          IntArray colors) override;
    void defineRegisterDependent(int handle, IntArray colors) override;

    // Appends words as they stand, as if they were complete records; for tests
    // and fuzzing of the readers.
    void appendRawWords(const int *rawWords, int count);

    // For brushes, shapes and the readers.
    int getId() const { return id; }
    // Translates a colour and writes the definition of a dynamic colour that
    // hasn't been written yet.  Returns the final word.
    int registerColor(int color);
    // Writes a record of kind `op`; the arguments are those of the record's
    // back-end operation, colours already registered.
    template <MetaOpcode op, class... A>
    void writeRecord(A &&...args) {
        beginRecord(op);
        MetaRecordKind<op>::Call::encode(words, std::forward<A>(args)...);
    }
    // Copy of gradient pairs with every colour (odd entry) registered.
    std::vector<int> registerPairs(IntArray pairs);
    // Copy with every colour registered.
    std::vector<int> registerAll(IntArray colors);
    // Writes a Shape record around already encoded path items.
    void writeShape(int fillColor, bool inset, bool keepOutline, const std::vector<int> &pathWords);
    // Writes a record whose argument words are already encoded; returns its position.
    int appendRecord(unsigned opcode, const int *argWords, int count);
    MetaDrawImpl *outermost();
    const int *streamWords() const { return words.data(); }
    int readEnd() const { return frozen ? frozenPos : (int)words.size(); }
    const Symbol *findSymbol(int symbolId) const;
    // Makes the stream readable to its end: pending lines out, open record closed.
    void prepareForReading();
    // Re-entry guard of play and listing; false when already inside.
    bool enterReading();
    void leaveReading() { --playDepth; }
    // Plays this list as the body of a symbol of an outer play.
    void playSymbol(DrawBackEnd *backEnd, double scale);

private:
    void beginRecord(unsigned opcode);
    void closeRecord();
    void defineBrush(int handle, MetaBrush *brush);
    void dropBrush(int handle);
    int defineListSymbol(MetaDrawImpl *source);
    int addSymbol(int kind, void *object, int length);
    void freeSymbol(const Symbol &symbol);
    void writeLineBatch();
    void addLineStyle(int color, int width);
    int batchPointCount() const { return (int)batchPoints.size() / 2; }
    void writeLighting(unsigned opcode, int handle, int color, const double box[4], bool periodic,
                       IntArray lighting);
    double playScale() const;
    int knownWidth() const;
    int knownHeight() const;

    int id;
    MetaDrawOwner *owner;
    MetaDrawImpl *parentList;
    MetaDrawImpl *optionParent;

    std::vector<int> words;
    int curRecord;
    bool frozen;
    int frozenPos;

    // The pending line batch: its points, x and y interleaved, and the styles,
    // each starting at a point.  Kept apart so that a long polyline costs two
    // doubles a point and goes into the stream as it stands.
    struct LineStyleMark {
        int point;
        int color, width;
    };
    std::vector<double> batchPoints;
    std::vector<LineStyleMark> batchStyles;
    double lastX, lastY;
    bool flushing;

    std::map<int, Symbol> symbols;
    std::map<int, MetaBrush *> metaBrushes;
    int brushDepth;
    std::vector<int> symbolLog;
    int markPos;
    int markSymbolCount;
    std::map<std::string, std::string> options;
    int sizeHintW, sizeHintH;
    int playDepth;
    double bitmapScale;
    int width, height;
    mutable bool lookingUpOption;
};
