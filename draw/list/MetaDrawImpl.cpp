#include "draw/list/MetaDrawImpl.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

#include "draw/list/DrawBackEnd.h"
#include "draw/list/MetaBrush.h"
#include "draw/list/MetaDrawOwner.h"
#include "draw/list/MetaListing.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaPlayer.h"
#include "draw/list/MetaRecordReader.h"
#include "draw/list/MetaShapeImpl.h"
#include "draw/list/MetaText.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/CLocale.h"
#include "foundation/Mutex.h"

namespace {

const int kInitialWords = 10000;
// Deepest chain of nested lists that is followed; deeper means a loop.
const int kMaxNesting = 64;
// A line batch keeps its buffer for the next one up to this many coordinates.
const size_t kKeptBatchDoubles = 1 << 16;
// Largest scaled raster area, in pixels, that the scaling interpreter makes.
const double kMaxScaledArea = 33554431;

std::string trimLower(const char *begin, const char *end) {
    while (begin < end && (*begin == ' ' || *begin == '\t')) ++begin;
    while (end > begin && (end[-1] == ' ' || end[-1] == '\t')) --end;
    std::string s(begin, end);
    for (char &c : s) c = (char)std::tolower((unsigned char)c);
    return s;
}

}  // namespace

MetaDraw *MetaDraw::create(MetaDrawOwner *owner) {
    return new MetaDrawImpl(owner);
}

MetaDrawImpl::MetaDrawImpl(MetaDrawOwner *owner)
    : id((int)qlx::getUniqueId()),
      owner(owner),
      parentList(nullptr),
      optionParent(nullptr),
      curRecord(0),
      frozen(false),
      frozenPos(0),
      lastX(0),
      lastY(0),
      flushing(false),
      brushDepth(0),
      markPos(-1),
      markSymbolCount(0),
      sizeHintW(-1),
      sizeHintH(-1),
      playDepth(0),
      bitmapScale(1.0),
      width(0),
      height(0),
      lookingUpOption(false) {}

MetaDrawImpl::~MetaDrawImpl() {
    for (int i = (int)symbolLog.size() - 1; i >= 0; --i) {
        auto it = symbols.find(symbolLog[i]);
        if (it == symbols.end()) continue;
        freeSymbol(it->second);
        symbols.erase(it);
    }
    for (auto &entry : metaBrushes) entry.second->destroy();
}

// ---- the word stream

void MetaDrawImpl::closeRecord() {
    if (frozen) return;
    int end = (int)words.size();
    if (curRecord < end && words[curRecord] == 0) words[curRecord] = end - curRecord;
}

void MetaDrawImpl::beginRecord(unsigned opcode) {
    if (!isColorOpcode(opcode)) flushLines();
    if (frozen) {
        // Thrown away by the next record; play stops at frozenPos.
        words.resize(frozenPos);
        curRecord = frozenPos;
    } else {
        closeRecord();
        curRecord = (int)words.size();
    }
    if (words.capacity() == 0) words.reserve(kInitialWords);
    words.push_back(0);
    words.push_back((int)opcode);
}

int MetaDrawImpl::appendRecord(unsigned opcode, const int *argWords, int count) {
    beginRecord(opcode);
    int pos = curRecord;
    words.insert(words.end(), argWords, argWords + count);
    return pos;
}

void MetaDrawImpl::appendRawWords(const int *rawWords, int count) {
    if (!rawWords || count <= 0) return;
    flushLines();
    closeRecord();
    words.insert(words.end(), rawWords, rawWords + count);
    curRecord = (int)words.size();
}

void MetaDrawImpl::prepareForReading() {
    flushLines();
    closeRecord();
}

void MetaDrawImpl::freeze() {
    if (frozen) return;
    prepareForReading();
    frozenPos = (int)words.size();
    frozen = true;
}

MetaDrawImpl *MetaDrawImpl::outermost() {
    MetaDrawImpl *list = this;
    for (int i = 0; i < kMaxNesting && list->parentList; ++i) list = list->parentList;
    return list;
}

// ---- colours

int MetaDrawImpl::registerColor(int color) {
    int word = owner ? owner->getARGBColor(color) : color;
    if (!ColorWord::isDynamicHandle(word) || brushDepth > 10) return word;
    ++brushDepth;
    MetaDrawImpl *list = this;
    for (int i = 0; i < kMaxNesting && list; ++i, list = list->parentList) {
        auto it = list->metaBrushes.find(word);
        if (it != list->metaBrushes.end()) {
            it->second->emit(outermost(), sizeHintW, sizeHintH);
            break;
        }
    }
    --brushDepth;
    return word;
}

std::vector<int> MetaDrawImpl::registerPairs(IntArray pairs) {
    std::vector<int> out(pairs.data, pairs.data + pairs.len);
    for (size_t i = 1; i < out.size(); i += 2) out[i] = registerColor(out[i]);
    return out;
}

std::vector<int> MetaDrawImpl::registerAll(IntArray colors) {
    std::vector<int> out(colors.data, colors.data + colors.len);
    for (int &c : out) c = registerColor(c);
    return out;
}

void MetaDrawImpl::dropBrush(int handle) {
    auto it = metaBrushes.find(handle);
    if (it == metaBrushes.end()) return;
    it->second->destroy();
    metaBrushes.erase(it);
}

void MetaDrawImpl::defineBrush(int handle, MetaBrush *brush) {
    dropBrush(handle);
    metaBrushes[handle] = brush;
}

void MetaDrawImpl::defineTransformed(int handle, int source, const double m[6]) {
    dropBrush(handle);
    const double t[6] = {m[0], m[1], m[2], m[3], m[4], m[5]};
    writeRecord<kOpTransformedColor>(handle, registerColor(source), t);
}

void MetaDrawImpl::definePreciseTransform(int handle, int source, const double m[6]) {
    dropBrush(handle);
    const double t[6] = {m[0], m[1], m[2], m[3], m[4], m[5]};
    writeRecord<kOpPreciseTransformColor>(handle, registerColor(source), t);
}

void MetaDrawImpl::defineBrushedTexture(int handle, int color, int texture) {
    dropBrush(handle);
    writeRecord<kOpBrushedTextureColor>(handle, registerColor(color), texture);
}

void MetaDrawImpl::defineMultiLayer(int handle, IntArray layers) {
    dropBrush(handle);
    std::vector<int> l = registerAll(layers);
    writeRecord<kOpMultiLayerColor>(handle, IntArray(l.data(), (int)l.size()));
}

void MetaDrawImpl::defineLinearGradient(int handle, double x1, double y1, double x2, double y2,
                                        bool periodic, IntArray pairs) {
    dropBrush(handle);
    std::vector<int> p = registerPairs(pairs);
    writeRecord<kOpLinearGradientColor>(handle, x1, y1, x2, y2, periodic,
                                        IntArray(p.data(), (int)p.size()));
}

void MetaDrawImpl::defineRadialGradient(int handle, int cx, int cy, int rx, int ry, bool periodic,
                                        IntArray pairs) {
    dropBrush(handle);
    std::vector<int> p = registerPairs(pairs);
    writeRecord<kOpRadialGradientColor>(handle, cx, cy, rx, ry, periodic,
                                        IntArray(p.data(), (int)p.size()));
}

void MetaDrawImpl::defineAngleGradient(int handle, double cx, double cy, double startAngle,
                                       double endAngle, double innerRadius, double outerRadius,
                                       IntArray pairs) {
    dropBrush(handle);
    std::vector<int> p = registerPairs(pairs);
    writeRecord<kOpAngleGradientColor>(handle, cx, cy, startAngle, endAngle, innerRadius,
                                       outerRadius, IntArray(p.data(), (int)p.size()));
}

void MetaDrawImpl::defineLighting(int handle, int color, double x1, double y1, double x2, double y2,
                                  bool periodic, IntArray lighting) {
    dropBrush(handle);
    writeRecord<kOpLightingColor>(handle, registerColor(color), x1, y1, x2, y2, periodic, lighting);
}

void MetaDrawImpl::defineLinearLighting(int handle, int color, double x1, double y1, double x2,
                                        double y2, bool periodic, IntArray lighting) {
    dropBrush(handle);
    writeRecord<kOpLinearLightingColor>(handle, registerColor(color), x1, y1, x2, y2, periodic,
                                        lighting);
}

void MetaDrawImpl::defineRadialLighting(int handle, int color, int cx, int cy, int rx, int ry,
                                        IntArray lighting) {
    dropBrush(handle);
    writeRecord<kOpRadialLightingColor>(handle, registerColor(color), cx, cy, rx, ry, lighting);
}

void MetaDrawImpl::definePattern(int handle, int startX, int startY, int width, int height,
                                 IntArray pixels) {
    dropBrush(handle);
    std::vector<int> p = registerAll(pixels);
    writeRecord<kOpPatternColor>(handle, startX, startY, width, height,
                                 IntArray(p.data(), (int)p.size()));
}

void MetaDrawImpl::definePatternFile(int handle, int startX, int startY, const char *file) {
    dropBrush(handle);
    writeRecord<kOpPatternColor2>(handle, startX, startY, file);
}

void MetaDrawImpl::defineZone(int handle, bool vertical, int boundary, int before, int after) {
    dropBrush(handle);
    int b = registerColor(before);
    int a = registerColor(after);
    writeRecord<kOpZoneColor>(handle, vertical, boundary, b, a);
}

void MetaDrawImpl::defineRect(int handle, double x1, double y1, double x2, double y2, int color) {
    dropBrush(handle);
    writeRecord<kOpRectColor>(handle, x1, y1, x2, y2, registerColor(color));
}

void MetaDrawImpl::defineBrightness(int handle, int source, double factor) {
    defineBrush(handle, new MetaBrightnessAdjustmentBrush(handle, source, factor));
}

void MetaDrawImpl::defineDash(int handle, int color, int pattern) {
    defineBrush(handle, new MetaDashLineBrush(handle, color, pattern));
}

void MetaDrawImpl::defineRelativeGradient(int handle, double x1, double y1, double x2, double y2,
                                          bool periodic, IntArray pairs) {
    const double box[4] = {x1, y1, x2, y2};
    defineBrush(handle, new MetaRelativeLinearGradientBrush(handle, box, periodic, pairs));
}

void MetaDrawImpl::defineRelativeLighting(int handle, int color, double x1, double y1, double x2,
                                          double y2, bool periodic, IntArray lighting) {
    const double box[4] = {x1, y1, x2, y2};
    defineBrush(handle,
                new MetaRelativeLinearLightingBrush(handle, color, box, periodic, lighting));
}

void MetaDrawImpl::defineXYZone(int handle, const PixelScale *scale, bool vertical, double value,
                                int before, int after) {
    defineBrush(handle, new MetaXYZoneBrush(handle, scale, vertical, value, before, after));
}

void MetaDrawImpl::defineScaleColor(int handle, const PixelScale *scale, bool vertical,
                                    DoubleArray values, IntArray colors) {
    defineBrush(handle, new MetaScaleColorBrush(handle, scale, vertical, values, colors));
}

void MetaDrawImpl::defineRegisterDependent(int handle, IntArray colors) {
    defineBrush(handle, new RegisterDependentBrush(colors));
}

// ---- drawing records

void MetaDrawImpl::setSize(int width, int height, int bgColor) {
    // A brush that depends on the canvas size resolves it while the
    // background colour is registered.
    sizeHintW = width;
    sizeHintH = height;
    int bg = registerColor(bgColor);
    sizeHintW = sizeHintH = -1;
    this->width = width;
    this->height = height;
    writeRecord<kOpSetSize>(width, height, bg);
}

void MetaDrawImpl::resize(int width, int height) {
    this->width = width;
    this->height = height;
    writeRecord<kOpResize>(width, height);
}

void MetaDrawImpl::affineTransform(double a, double b, double c, double d, double e, double f,
                                   int bgColor, int filter, double blur) {
    writeRecord<kOpAffineTransform>(a, b, c, d, e, f, registerColor(bgColor), filter, blur);
}

void MetaDrawImpl::setClipRect(int left, int top, int right, int bottom) {
    writeRecord<kOpSetClipRect>(left, top, right, bottom);
}

void MetaDrawImpl::setBgColor(int color) {
    writeRecord<kOpSetBgColor>(registerColor(color));
}

void MetaDrawImpl::setBgRoundedClip(int r1, int r2, int r3, int r4, int color) {
    writeRecord<kOpSetBgRoundedClip>(r1, r2, r3, r4, registerColor(color));
}

void MetaDrawImpl::setBgDropShadow(int a, int b, int c, int d, int color) {
    writeRecord<kOpSetBgDropShadow>(a, b, c, d, registerColor(color));
}

void MetaDrawImpl::line(double x1, double y1, double x2, double y2, int color, int width) {
    writeRecord<kOpLine>(x1, y1, x2, y2, registerColor(color), width);
}

void MetaDrawImpl::roundedRect(double x1, double y1, double x2, double y2, const int radius[4],
                               const int edgeColor[4], int fillColor) {
    int r[4], e[4];
    for (int i = 0; i < 4; ++i) {
        r[i] = radius ? radius[i] : 0;
        e[i] = edgeColor ? edgeColor[i] : kTransparent;
    }
    bool uniform = r[0] == r[1] && r[1] == r[2] && r[2] == r[3] && e[0] == e[1] && e[1] == e[2] &&
                   e[2] == e[3];
    if (uniform) {
        int edge = registerColor(e[0]);
        writeRecord<kOpRoundedRect>(x1, y1, x2, y2, r[0], edge, registerColor(fillColor));
        return;
    }
    for (int &c : e) c = registerColor(c);
    writeRecord<kOpMultiRoundedRect>(x1, y1, x2, y2, r, e, registerColor(fillColor));
}

void MetaDrawImpl::polygon(const double *x, const double *y, int n, int edgeColor, int fillColor) {
    if (!x || !y || n < 1) return;
    int edge = registerColor(edgeColor);
    writeRecord<kOpPolygon>(edge, registerColor(fillColor), DoubleArray(x, n), DoubleArray(y, n));
}

void MetaDrawImpl::exactPolygon(const double *x, const double *y, int n, int fillColor) {
    if (!x || !y || n < 1) return;
    writeRecord<kOpExactPolygon>(registerColor(fillColor), DoubleArray(x, n), DoubleArray(y, n));
}

MetaDraw::MetaShape *MetaDrawImpl::createShape() {
    return new MetaShapeImpl(this);
}

void MetaDrawImpl::writeShape(int fillColor, bool inset, bool keepOutline,
                              const std::vector<int> &pathWords) {
    int fill = registerColor(fillColor);
    beginRecord(kOpShape);
    putSlots(words, fill, inset, keepOutline);
    words.insert(words.end(), pathWords.begin(), pathWords.end());
}

void MetaDrawImpl::gouraudTriangle(double x0, double y0, double i0, double x1, double y1, double i1,
                                   double x2, double y2, double i2, int color) {
    const double v[9] = {x0, y0, i0, x1, y1, i1, x2, y2, i2};
    writeRecord<kOpGouraudShadedTriangle>(v, registerColor(color));
}

void MetaDrawImpl::beginSuperPixelMode() {
    writeRecord<kOpBeginSuperPixelMode>();
}

void MetaDrawImpl::commitSuperPixels() {
    writeRecord<kOpCommitSuperPixels>();
}

void MetaDrawImpl::setSubDrawMode() {
    writeRecord<kOpSetSubDrawMode>();
}

void MetaDrawImpl::drawText(MetaText *text, int first, int end, int x, int y, int color) {
    if (!text) return;
    // Colours of the items are defined before the record that draws them.
    int items = text->getItemCount();
    bool have = false;
    int lastGiven = 0;
    for (int i = first < 0 ? 0 : first; i < end && i < items; ++i) {
        int c = text->getItemColor(i, color);
        if (have && c == lastGiven) continue;
        registerColor(c);
        lastGiven = c;
        have = true;
    }
    int finalColor = registerColor(color);
    text->retainText();
    int symbolId = addSymbol(kTextSymbol, text, 0);
    beginRecord(kOpText);
    putSlots(words, symbolId, first, end, x, y, finalColor);
}

// ---- symbols

int MetaDrawImpl::addSymbol(int kind, void *object, int length) {
    int symbolId = (int)qlx::getUniqueId();
    symbols[symbolId] = Symbol{kind, object, length};
    symbolLog.push_back(symbolId);
    return symbolId;
}

int MetaDrawImpl::defineListSymbol(MetaDrawImpl *source) {
    if (symbols.count(source->id)) return source->id;
    if (source->owner) source->owner->retain();
    symbols[source->id] = Symbol{kListSymbol, source, 0};
    symbolLog.push_back(source->id);
    beginRecord(kOpDefineSymbol);
    putSlots(words, source->id);
    return source->id;
}

void MetaDrawImpl::freeSymbol(const Symbol &symbol) {
    switch (symbol.kind) {
        case kListSymbol: {
            MetaDrawOwner *canvas = static_cast<MetaDrawImpl *>(symbol.object)->owner;
            if (canvas) canvas->destroy();
            break;
        }
        case kImageSymbol:
            std::free(symbol.object);
            break;
        case kTextSymbol:
            static_cast<MetaText *>(symbol.object)->releaseText();
            break;
        default:
            break;  // pixel blocks are borrowed
    }
}

const MetaDrawImpl::Symbol *MetaDrawImpl::findSymbol(int symbolId) const {
    auto it = symbols.find(symbolId);
    return it == symbols.end() ? nullptr : &it->second;
}

void MetaDrawImpl::mergeScaled(MetaDraw *source, int x, int y, int width, int height,
                               int transparency) {
    MetaDrawImpl *src = static_cast<MetaDrawImpl *>(source);
    if (!src || src == this) return;
    int symbolId = defineListSymbol(src);
    writeRecord<kOpMergeWithScaling>(symbolId, x, y, width, height, transparency);
}

void MetaDrawImpl::mergeRotated(MetaDraw *source, double x, double y, double angle) {
    MetaDrawImpl *src = static_cast<MetaDrawImpl *>(source);
    if (!src || src == this) return;
    int symbolId = defineListSymbol(src);
    writeRecord<kOpMergeWithRotation>(symbolId, x, y, angle);
}

void MetaDrawImpl::mergeAtPoints(MetaDraw *source, int width, int height, IntArray points) {
    MetaDrawImpl *src = static_cast<MetaDrawImpl *>(source);
    if (!src || src == this || width <= 0 || height <= 0 || points.len < 2 || !points.data) return;
    int symbolId = defineListSymbol(src);
    writeRecord<kOpMergeAtPoints>(symbolId, width, height, IntArray(points.data, points.len & ~1));
}

void MetaDrawImpl::mergeBitMap(const int *pixels, int count, int width, int x, int y) {
    if (!pixels || count <= 0 || width <= 0) return;
    int symbolId = addSymbol(kPixelSymbol, const_cast<int *>(pixels), count);
    beginRecord(kOpMergeBitMap);
    putSlots(words, symbolId, width, x, y);
}

void MetaDrawImpl::loadStream(char *data, int length, int imageType, int width, int height) {
    if (!data) return;
    if (length <= 0) {
        std::free(data);
        return;
    }
    int symbolId = addSymbol(kImageSymbol, data, length);
    this->width = width;
    this->height = height;
    beginRecord(kOpLoadStream);
    putSlots(words, symbolId, imageType, width, height);
}

// ---- line batching

void MetaDrawImpl::addLineStyle(int color, int width) {
    // A style holds for the segments that end at its point and after, so one
    // that no segment followed gives way to the new one.
    int at = batchPointCount() <= 1 ? 0 : batchPointCount();
    while (!batchStyles.empty() && batchStyles.back().point >= at) batchStyles.pop_back();
    if (!batchStyles.empty() && batchStyles.back().color == color &&
        batchStyles.back().width == width)
        return;
    batchStyles.push_back(LineStyleMark{at, color, width});
}

void MetaDrawImpl::moveLineTo(int color, int width, double x, double y) {
    int c = registerColor(color);
    if (!batchStyles.empty() && (x != lastX || y != lastY)) flushLines();
    bool empty = batchStyles.empty();
    if (empty || c != batchStyles.back().color || width != batchStyles.back().width)
        addLineStyle(c, width);
    if (empty) {
        batchPoints.push_back(x);
        batchPoints.push_back(y);
    }
    lastX = x;
    lastY = y;
}

void MetaDrawImpl::addLine(int color, int width, double x1, double y1, double x2, double y2) {
    moveLineTo(color, width, x1, y1);
    batchPoints.push_back(x2);
    batchPoints.push_back(y2);
    lastX = x2;
    lastY = y2;
}

void MetaDrawImpl::flushLines() {
    if (flushing || batchStyles.empty()) return;
    flushing = true;
    // A lone point draws nothing, nor does a style after the last point.
    while (batchStyles.size() > 1 && batchStyles.back().point >= batchPointCount())
        batchStyles.pop_back();
    if (batchPointCount() >= 2) writeLineBatch();
    // A long batch gives its memory back: the stream holds the points now.
    if (batchPoints.capacity() > kKeptBatchDoubles)
        std::vector<double>().swap(batchPoints);
    else
        batchPoints.clear();
    batchStyles.clear();
    flushing = false;
}

void MetaDrawImpl::writeLineBatch() {
    if (batchStyles.size() == 1) {
        writeRecord<kOpPolyLine>(batchStyles[0].color, batchStyles[0].width,
                                 DoubleArray(batchPoints.data(), (int)batchPoints.size()));
        return;
    }
    beginRecord(kOpMultiLine);
    size_t style = 0;
    for (int i = 0; i < batchPointCount(); ++i) {
        for (; style < batchStyles.size() && batchStyles[style].point == i; ++style)
            putSlots(words, (int)kLineItemStyle, batchStyles[style].color,
                     batchStyles[style].width);
        putSlots(words, (int)kLineItemCoor, batchPoints[2 * i], batchPoints[2 * i + 1]);
    }
}

// ---- dynamic layer

int MetaDrawImpl::markDynamicLayer() {
    prepareForReading();
    markPos = readEnd();
    markSymbolCount = (int)symbolLog.size();
    writeRecord<kOpInitDynamicLayer>();
    return markPos;
}

int MetaDrawImpl::rollback(DrawBackEnd *raster) {
    if (markPos < 0) return 0;
    bool restored = raster && raster->restoreSnapshot();
    batchPoints.clear();
    batchStyles.clear();
    if (markPos < (int)words.size()) words.resize(markPos);
    if (frozen && frozenPos > markPos) frozenPos = markPos;
    curRecord = markPos;
    while ((int)symbolLog.size() > markSymbolCount) {
        int symbolId = symbolLog.back();
        symbolLog.pop_back();
        auto it = symbols.find(symbolId);
        if (it == symbols.end()) continue;
        if (restored) raster->removeSymbol(symbolId);
        freeSymbol(it->second);
        symbols.erase(it);
    }
    for (auto &entry : metaBrushes) entry.second->forgetFrom(markPos);
    int pos = markPos;
    markPos = -1;
    return pos;
}

// ---- options

void MetaDrawImpl::setOutputOptions(const char *text) {
    if (!text) text = "";
    char mode = text[0];
    if (mode == '+' || mode == '-')
        ++text;
    else
        options.clear();
    while (*text) {
        const char *end = std::strchr(text, ';');
        if (!end) end = text + std::strlen(text);
        const char *eq = static_cast<const char *>(std::memchr(text, '=', end - text));
        std::string key = trimLower(text, eq ? eq : end);
        if (!key.empty()) {
            if (mode == '-')
                options.erase(key);
            else
                options[key] = eq ? trimLower(eq + 1, end) : std::string();
        }
        text = *end ? end + 1 : end;
    }
}

void MetaDrawImpl::setOptionParent(MetaDraw *parent) {
    optionParent = parent == this ? nullptr : static_cast<MetaDrawImpl *>(parent);
}

void MetaDrawImpl::setParentList(MetaDraw *parent) {
    parentList = parent == this ? nullptr : static_cast<MetaDrawImpl *>(parent);
}

const char *MetaDrawImpl::getOption(const char *name) const {
    if (!name || lookingUpOption) return nullptr;
    lookingUpOption = true;  // a loop of parents ends here
    const char *value = parentList ? parentList->getOption(name) : nullptr;
    if (!value && optionParent) value = optionParent->getOption(name);
    lookingUpOption = false;
    if (value) return value;
    auto it = options.find(trimLower(name, name + std::strlen(name)));
    return it == options.end() ? nullptr : it->second.c_str();
}

double MetaDrawImpl::getOptionNumber(const char *name, double defaultValue) const {
    const char *value = getOption(name);
    if (!value || !*value) return defaultValue;
    return qlx::atofCLocale(value);
}

// ---- reading

bool MetaDrawImpl::enterReading() {
    if (playDepth > 0) return false;
    ++playDepth;
    return true;
}

int MetaDrawImpl::knownWidth() const {
    return owner ? owner->getWidth() : width;
}

int MetaDrawImpl::knownHeight() const {
    return owner ? owner->getHeight() : height;
}

double MetaDrawImpl::playScale() const {
    double scale = getOptionNumber("bmpscale", 1.0) * getOptionNumber("dpi", 96.0) / 96;
    if (!(scale > 0) || (double)knownWidth() * scale * knownHeight() > kMaxScaledArea) return 1;
    return scale;
}

int MetaDrawImpl::play(DrawBackEnd *backEnd, int fromPos) {
    if (!backEnd || !enterReading()) return fromPos;
    prepareForReading();
    double scale = playScale();
    int reached = 0;
    if (fromPos == 0 || scale == bitmapScale) {
        bitmapScale = scale;
        MetaPlayer player(this, backEnd, scale);
        reached = player.play(fromPos);
    }
    leaveReading();
    return reached;
}

void MetaDrawImpl::playAll(DrawBackEnd *backEnd) {
    if (!backEnd || !enterReading()) return;
    prepareForReading();
    MetaPlayer player(this, backEnd, 1.0);
    player.play(0);
    leaveReading();
}

void MetaDrawImpl::playSymbol(DrawBackEnd *backEnd, double scale) {
    if (!enterReading()) return;
    prepareForReading();
    MetaPlayer player(this, backEnd, scale);
    player.playBody(0);
    leaveReading();
}

void MetaDrawImpl::writeListing(qlx::ostream &out) {
    if (!enterReading()) return;
    prepareForReading();
    MetaListing listing(this, out);
    listing.write();
    leaveReading();
    out.flush();
}
