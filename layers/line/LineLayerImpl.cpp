#include "layers/line/LineLayerImpl.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/layer/DataSetImpl.h"
#include "chart/layer/PointPixels.h"
#include "chart/symbol/LayerPainter.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "layers/line/ClipChain.h"
#include "layers/line/LineHotSpots.h"
#include "layers/line/LineRibbon.h"
#include "layers/line/LineWalk.h"
#include "layers/line/MultiLine.h"
#include "layers/line/SetSymbols.h"

namespace {

const int kMainColorEntry = kSameAsMainColor & 0xFFFF;
// The shade of ribbon faces whose top shows.
const double kTopFaceShade = 1.15;

}  // namespace

LineLayerImpl::LineLayerImpl(XYChartImpl *chart)
    : LayerImpl(chart),
      imageMapWidth(5),
      gapColor(kTransparent),
      gapWidth(-1),
      fastLineMode(true),
      clipper(nullptr) {
    setBorderColor(kLineColor, 0);
}

LineLayerImpl::~LineLayerImpl() {
    for (MultiLine *line : lines) delete line;
    releaseClipper();
}

void LineLayerImpl::releaseClipper() {
    delete clipper;
    clipper = nullptr;
}

// ---- Settings ----

void LineLayerImpl::setGapColor(int lineColor, int lineWidth) {
    gapColor = lineColor;
    gapWidth = lineWidth;
}

void LineLayerImpl::setSymbolScale(DoubleArray zDataX, int scaleTypeX, DoubleArray zDataY,
                                   int scaleTypeY) {
    symbolSizes.set(zDataX, scaleTypeX, zDataY, scaleTypeY);
}

void LineLayerImpl::setSymbolScale2(DoubleArray zData, int scaleType) {
    symbolSizes.set(zData, scaleType, DoubleArray(), kPixelScale);
}

int LineLayerImpl::lineWidthOf(int dataSet) const {
    DataSetImpl *set = dataSetAt(dataSet);
    if (!set) return 0;
    return set->getLineWidth() >= 0 ? set->getLineWidth() : getLineWidth();
}

// ---- Lines ----

MultiLine *LineLayerImpl::lineAt(int dataSet) {
    if (dataSet < 0 || dataSet >= countDataSets()) return nullptr;
    while ((int)lines.size() <= dataSet) lines.push_back(new MultiLine());
    return lines[dataSet];
}

LineObj *LineLayerImpl::getLine(int dataSet) {
    return builtLine(dataSet);
}

const MultiLine *LineLayerImpl::lineOf(int dataSet) {
    getChart()->layout();
    ensurePrepared();
    return builtLine(dataSet);
}

MultiLine *LineLayerImpl::builtLine(int dataSet) {
    MultiLine *line = lineAt(dataSet);
    if (line) line->make();
    return line;
}

void LineLayerImpl::makeLine(int dataSet) {
    MultiLine *line = lineAt(dataSet);
    createLineObj(dataSet, *line);
    line->layout(isSwapped(), getOffsetX(), getOffsetY());
}

// A set whose segments and gap bridges draw nothing (a scatter) needs its
// line only when asked for it.
bool LineLayerImpl::drawsLine(int dataSet) const {
    int width = lineWidthOf(dataSet);
    return width > 0 || (gapColor != kTransparent && (gapWidth < 0 ? width : gapWidth) > 0);
}

int LineLayerImpl::axisPixels() const {
    int left, top, right, bottom;
    getPlotRect(&left, &top, &right, &bottom);
    return isSwapped() ? bottom - top : right - left;
}

void LineLayerImpl::onPrepare() {
    releaseClipper();
    for (int s = 0; s < countDataSets(); ++s) {
        MultiLine *line = lineAt(s);
        line->clear();
        line->layout(isSwapped(), getOffsetX(), getOffsetY());
        if (getDataCount() <= 0) continue;
        if (drawsLine(s))
            createLineObj(s, *line);
        else
            line->defer(this, s);
    }
}

void LineLayerImpl::createLineObj(int dataSet, MultiLine &line) {
    PointPixels pixels(*this, dataSet);
    int first = firstPoint(), end = endPoint();
    bool reversed = xAxisImpl()->isReversed();
    if (fastLineMode && LineWalk::takesColumns(end - first, axisPixels())) {
        line.reserve(4 * (size_t)(axisPixels() + 2));
        LineWalk::columnsOf(pixels, first, end, reversed, line);
    } else {
        line.reserve(end - first);
        LineWalk::plain(pixels, first, end, reversed, line);
    }
}

// ---- Painting ----

void LineLayerImpl::onPaint(LayerPainter &painter) {
    if (getDataCount() <= 0) return;
    for (int s = countDataSets() - 1; s >= 0; --s) paintLine(s, painter);
    for (int s = 0; s < countDataSets(); ++s) SetSymbols(*this, s, &symbolSizes).paint(painter);
}

void LineLayerImpl::paintLine(int dataSet, LayerPainter &painter) {
    DataSetImpl *set = dataSetAt(dataSet);
    const MultiLine *line = lineAt(dataSet);
    if (!set || !line || line->size() < 2) return;
    getDrawArea()->setColorTable(kMainColorEntry, set->getDataColor());
    if (getDepth() > 0)
        paintRibbon(dataSet, *line, set->getDataColor(), lineWidthOf(dataSet), painter);
    else
        paintFlat(*line, set->getDataColor(), lineWidthOf(dataSet), painter);
}

// Segments that meet go to the canvas one after the other: the canvas joins
// them into one poly-line and mitres the joints.
void LineLayerImpl::paintFlat(const MultiLine &line, int color, int width, LayerPainter &painter) {
    int bridgeWidth = gapWidth < 0 ? width : gapWidth;
    bool open = false;
    for (int k = 1; k < line.size(); ++k) {
        const MultiLine::Point &a = line.at(k - 1), &b = line.at(k);
        bool gap = a.gapAfter;
        int w = gap ? bridgeWidth : width;
        if (w <= 0 || (gap && gapColor == kTransparent)) {
            open = false;
            continue;
        }
        if (!open) painter.initLineTo(a.x, a.y);
        open = true;
        painter.lineTo(b.x, b.y, gap ? gapColor : color, w);
    }
}

// Runs of segments of one look become ribbons; a gap bridged in its own
// colour is a run of its own.
void LineLayerImpl::paintRibbon(int dataSet, const MultiLine &line, int color, int width,
                                LayerPainter &painter) {
    DrawArea *d = getDrawArea();
    DataSetImpl *set = dataSetAt(dataSet);
    LineRibbon::Look look;
    look.edgeColor = set->getEdgeColor() != -1 ? set->getEdgeColor() : getBorderColor();
    look.depth = getDepth();
    look.lit = Chart::isCylinderEffect(getLightingEffect());
    look.lighting[0] = 1, look.lighting[1] = look.lighting[2] = 0, look.lighting[3] = 1;
    if (look.lit) Chart::getPhongLighting(look.lighting, getLightingEffect());
    int bridgeWidth = gapWidth < 0 ? width : gapWidth;
    std::vector<double> x, y;
    int runColor = color;
    auto flush = [&]() {
        if (x.size() >= 2) {
            look.color = runColor;
            look.topColor = d->adjustBrightness(runColor, kTopFaceShade);
            LineRibbon(painter, look).paintRun(x, y);
        }
        x.clear();
        y.clear();
    };
    for (int k = 1; k < line.size(); ++k) {
        const MultiLine::Point &a = line.at(k - 1), &b = line.at(k);
        bool gap = a.gapAfter;
        int c = gap ? gapColor : color;
        if ((gap ? bridgeWidth : width) <= 0 || (gap && gapColor == kTransparent)) {
            flush();
            continue;
        }
        if (c != runColor) flush();
        runColor = c;
        if (x.empty()) x.push_back(a.x), y.push_back(a.y);
        x.push_back(b.x), y.push_back(b.y);
    }
    flush();
}

// ---- Labels and hot spots ----

void LineLayerImpl::collectLabelSpots(std::vector<LabelSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    for (int s = 0; s < countDataSets(); ++s) {
        SetSymbols symbols(*this, s, &symbolSizes);
        int x, y, w, h;
        for (int i : labelledPoints(s)) {
            if (!symbols.at(i, painter, &x, &y, &w, &h)) continue;
            LabelSpot spot = {s,
                              i,
                              dataSetAt(s)->getGroupNo(),
                              false,
                              dataSetAt(s)->valueAt(i),
                              x - w / 2,
                              y - h / 2,
                              x - w / 2 + std::max(w - 1, 0),
                              y - h / 2 + std::max(h - 1, 0),
                              isSwapped() ? kRight : kTop};
            spot.outside = true;
            spots.push_back(spot);
        }
    }
}

ClipChain &LineLayerImpl::getClipper() {
    if (!clipper) clipper = ClipChain::forLayer(*this);
    return *clipper;
}

void LineLayerImpl::symbolHotSpots(int dataSet, const LayerPainter &painter,
                                   std::vector<HotSpot> &spots) {
    SetSymbols symbols(*this, dataSet, &symbolSizes);
    int x, y, w, h;
    for (int i = firstPoint(); i < endPoint(); ++i) {
        if (!symbols.at(i, painter, &x, &y, &w, &h)) continue;
        w = std::max(w, imageMapWidth), h = std::max(h, imageMapWidth);
        spots.push_back(
            HotSpot{dataSet, i, {x - w / 2, y - h / 2, x - w / 2 + w - 1, y - h / 2 + h - 1}});
    }
}

// A line is found along its segments; symbols alone by their boxes.
void LineLayerImpl::collectHotSpots(std::vector<HotSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    for (int s = 0; s < countDataSets(); ++s) {
        if (lineWidthOf(s) > 0)
            LineHotSpots::collect(s, *lineAt(s), painter, imageMapWidth, getClipper(), spots);
        else
            symbolHotSpots(s, painter, spots);
    }
}
