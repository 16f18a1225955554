#include "chart/symbol/DataSymbol.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "chart/symbol/ShapeWords.h"
#include "chart/symbol/SymbolOutline.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "foundation/ChartStatics.h"
#include "foundation/Constants.h"

namespace {

// Lighting pairs (position 0 to 256, brightness in 1/1024) of the round shapes,
// lit from the upper left unless centred.
struct RoundLook {
    int code;
    bool centred;
    int pairCount;
    int pairs[6];
};

const RoundLook kRoundLooks[] = {
    {kCircleShape, false, 2, {0, 1230, 256, 940}},
    {kGlassSphereShape, false, 3, {0, 2300, 110, 1250, 256, 720}},
    {kGlassSphere2Shape, true, 3, {0, 1900, 150, 1100, 256, 820}},
    {kSolidSphereShape, false, 3, {0, 1600, 150, 1024, 256, 480}},
};

// Symbols larger than this are refused: a symbol is a small mark.
const int kMaxSymbolSize = 4096;

int clampSize(int size) {
    return std::min(std::max(size, 0), kMaxSymbolSize);
}

bool needsOddSize(int code) {
    return code == kCircleShape || code == kCrossSymbol || code == kGlassSphereShape ||
           code == kGlassSphere2Shape || code == kSolidSphereShape;
}

int makeOdd(int size) {
    return size % 2 || size == 0 ? size : size + 1;
}

bool visible(DrawArea *d, int color) {
    return d->getARGBColor(color) != kTransparent;
}

}  // namespace

DataSymbol::DataSymbol()
    : customSymbol(nullptr),
      prepared(nullptr),
      shape(kNoShape),
      width(0),
      height(0),
      fillColor(0),
      edgeColor(0),
      lineWidth(0),
      drawFill(kTransparent),
      drawEdge(kTransparent),
      legendLaidOut(false),
      preparedDrawn(false) {}

DataSymbol::~DataSymbol() {
    releasePrepared();
}

void DataSymbol::releasePrepared() {
    if (prepared) prepared->destroy();
    prepared = nullptr;
    preparedDrawn = false;
}

void DataSymbol::setShape(int s, int size, int fill, int edge, int line) {
    customSymbol = nullptr;
    imageFile.clear();
    polygon.clear();
    shape = s;
    setSize(Chart::getWidthFromWH(size), Chart::getHeightFromWH(size));
    fillColor = fill;
    edgeColor = edge;
    lineWidth = line;
}

void DataSymbol::setPolygon(IntArray points, int size, int fill, int edge) {
    std::vector<double> copy(points.data, points.data + std::max(points.len, 0));
    setPolygon(DoubleArray(copy.data(), (int)copy.size()), size, fill, edge);
}

void DataSymbol::setPolygon(DoubleArray points, int size, int fill, int edge) {
    setShape(kVistrel_CustomSymbol, size, fill, edge, 1);
    polygon.assign(points.data, points.data + std::max(points.len, 0));
}

void DataSymbol::setImage(const char *path) {
    setShape(kNoShape, 0, 0, 0, 0);
    imageFile = path ? path : "";
}

void DataSymbol::setCustom(DrawArea *symbol) {
    setShape(kNoShape, 0, 0, 0, 0);
    customSymbol = symbol;
    if (symbol) setSize(symbol->getWidth(), symbol->getHeight());
}

void DataSymbol::setSize(int w, int h) {
    width = clampSize(w);
    height = clampSize(h);
}

bool DataSymbol::isVisible() const {
    if (customSymbol) return true;
    if (shape != kNoShape) return width > 0 && height > 0;
    return !imageFile.empty();
}

void DataSymbol::layoutLegend(DrawArea *d) {
    if (legendLaidOut || !d || customSymbol) return;
    legendLaidOut = true;
    if (shape != kNoShape) {
        if (needsOddSize(Chart::shapeCode(shape))) {
            width = makeOdd(width);
            height = makeOdd(height);
        }
        if (width > 0 && height > 0) prepared = d->createSubDrawArea(width, height);
    } else if (!imageFile.empty()) {
        prepared = d->createSubDrawArea(1, 1);
        int length = 0;
        char *data = d->loadFile(imageFile.c_str(), DrawArea::getFileLimit(), &length);
        if (data) {
            prepared->load2(length, data, -1);
            free(data);
        }
        setSize(prepared->getWidth(), prepared->getHeight());
    }
}

void DataSymbol::layoutChart(DrawArea *d, int dataColor, int defaultEdge) {
    if (!d) return;
    drawFill = d->getARGBColor(fillColor == -1 ? dataColor : fillColor);
    drawEdge = d->getARGBColor(edgeColor == -1 ? defaultEdge : edgeColor);
    if (shape == kNoShape || !prepared) return;
    prepared->setSize(width, height, kTransparent);
    draw(prepared, 0, 0, width, height);
    preparedDrawn = true;
}

bool DataSymbol::canMergePrepared(DrawArea *d, int w, int h) const {
    // A colour defined by position must be drawn where the symbol stands.
    return preparedDrawn && w == prepared->getWidth() && h == prepared->getHeight() &&
           !d->isDynamicColor(drawFill) && !d->isDynamicColor(drawEdge);
}

void DataSymbol::paint(DrawArea *d, int x, int y, int w, int h) {
    if (!d || w < 1 || h < 1) return;
    if (customSymbol) {
        d->merge(customSymbol, x, y, kCenter, 0);
    } else if (shape != kNoShape) {
        if (canMergePrepared(d, w, h))
            d->merge(prepared, x, y, kCenter, 0);
        else
            draw(d, x - w / 2, y - h / 2, w, h);
    } else if (prepared) {
        d->merge(prepared, x, y, kCenter, 0);
    }
}

void DataSymbol::paintAll(DrawArea *d, IntArray centres) {
    if (!d || !centres.data || width < 1 || height < 1) return;
    DrawArea *merged = customSymbol ? customSymbol : prepared;
    if (shape != kNoShape && !canMergePrepared(d, width, height)) merged = nullptr;
    if (merged) {
        d->mergeAtPoints(merged, centres, kCenter);
        return;
    }
    for (int i = 0; i + 1 < centres.len; i += 2)
        paint(d, centres.data[i], centres.data[i + 1], width, height);
}

void DataSymbol::draw(DrawArea *d, double x, double y, int w, int h) {
    draw2(d, shape, polygon, x, y, w, h, drawFill, drawEdge, lineWidth);
}

void DataSymbol::draw2(DrawArea *d, int word, const std::vector<double> &points, double x, double y,
                       int w, int h, int fill, int edge, int line) {
    if (!d || w < 1 || h < 1 || !std::isfinite(x) || !std::isfinite(y)) return;
    int code = Chart::shapeCode(word);
    switch (code) {
        case kNoShape:
            return;
        case kCircleShape:
        case kCircleShapeNoShading:
        case kGlassSphereShape:
        case kGlassSphere2Shape:
        case kSolidSphereShape:
            drawCircle(d, code, x, y, w, h, fill, edge, line);
            return;
        case kCrossSymbol:
        case kCross2Symbol:
            // A bare cross word is a pair of lines; one with an arm width is a shape.
            if ((word & ~0xFF) == 0) {
                drawLineCross(d, code == kCross2Symbol, x, y, w, h, visible(d, fill) ? fill : edge,
                              std::max(line, 1));
                return;
            }
            break;
        default:
            break;
    }
    drawOutline(d, word, points, x, y, w, h, fill, edge, line);
}

void DataSymbol::drawCircle(DrawArea *d, int code, double x, double y, int w, int h, int fill,
                            int edge, int line) {
    bool edged = line > 0 && visible(d, edge);
    // An edge lies on the outer pixels; without one the fill reaches their far side.
    double inset = edged ? line / 2.0 : 0;
    double cx = x + (w - 1) / 2.0, cy = y + (h - 1) / 2.0;
    double rx = w / 2.0 - inset, ry = h / 2.0 - inset;
    if (rx <= 0 || ry <= 0) rx = ry = 0.5;
    for (const RoundLook &look : kRoundLooks) {
        if (look.code != code || !visible(d, fill)) continue;
        double lx = look.centred ? cx : cx - rx / 3, ly = look.centred ? cy : cy - ry / 3;
        fill = d->radialLightingColor((int)std::floor(lx + 0.5), (int)std::floor(ly + 0.5),
                                      (int)std::ceil(rx * 1.35), (int)std::ceil(ry * 1.35), fill,
                                      IntArray(look.pairs, 2 * look.pairCount));
    }
    if (!edged || line == 1) {
        d->circle(cx, cy, rx, ry, edged ? edge : kTransparent, fill);
        return;
    }
    d->circle(cx, cy, rx, ry, kTransparent, fill);
    double half = line / 2.0;
    d->ring(cx, cy, rx + half, ry + half, std::max(rx - half, 0.0), std::max(ry - half, 0.0),
            kTransparent, edge);
}

void DataSymbol::drawLineCross(DrawArea *d, bool diagonal, double x, double y, int w, int h,
                               int color, int line) {
    double x2 = x + w - 1, y2 = y + h - 1;
    if (diagonal) {
        d->line(x, y, x2, y2, color, line);
        d->line(x, y2, x2, y, color, line);
        return;
    }
    double cx = x + (w - 1) / 2.0, cy = y + (h - 1) / 2.0;
    d->line(x, cy, x2, cy, color, line);
    d->line(cx, y, cx, y2, color, line);
}

void DataSymbol::drawOutline(DrawArea *d, int word, const std::vector<double> &points, double x,
                             double y, int w, int h, int fill, int edge, int line) {
    bool edged = line > 0 && visible(d, edge);
    double inset = edged ? line / 2.0 : 0;
    // The unit box maps onto the pixels' outer sides, less half the edge.
    double left = x - 0.5 + inset, top = y - 0.5 + inset;
    double sx = std::max(w - 2 * inset, 0.0), sy = std::max(h - 2 * inset, 0.0);
    for (const SymbolOutline::Polygon &p : SymbolOutline::of(word, points)) {
        size_t n = p.x.size();
        std::vector<double> px(n), py(n);
        for (size_t i = 0; i < n; ++i) {
            px[i] = left + (p.x[i] + 0.5) * sx;
            py[i] = top + (p.y[i] + 0.5) * sy;
        }
        DoubleArray ax(px.data(), (int)n), ay(py.data(), (int)n);
        if (!edged || line == 1) {
            d->polygon(ax, ay, edged ? edge : kTransparent, fill);
            continue;
        }
        d->polygon(ax, ay, kTransparent, fill);
        for (size_t i = 0; i < n; ++i)
            d->line(px[i], py[i], px[(i + 1) % n], py[(i + 1) % n], edge, line);
    }
}
