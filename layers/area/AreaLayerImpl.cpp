#include "layers/area/AreaLayerImpl.h"

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
#include "layers/area/AreaSides.h"
#include "layers/line/ClipChain.h"
#include "layers/line/LineWalk.h"
#include "layers/line/MultiLine.h"
#include "layers/line/SetSymbols.h"

namespace {

const int kMainColorEntry = kSameAsMainColor & 0xFFFF;
const double kTopFaceShade = 1.15;
const double kSideFaceShade = 0.75;

int roundPixel(double v) {
    return (int)std::floor(v + 0.5);
}

}  // namespace

struct AreaLayerImpl::Band {
    MultiLine top;
    MultiLine floor;
};

AreaLayerImpl::AreaLayerImpl(XYChartImpl *chart)
    : LayerImpl(chart), minLabelSize(-1), gapColor(kSameAsMainColor), clipper(nullptr) {
    setBorderColor(kLineColor, 0);
}

AreaLayerImpl::~AreaLayerImpl() {
    for (Band *band : bands) delete band;
    delete clipper;
}

bool AreaLayerImpl::isStacked() const {
    return getCombineMethod() == kStack || getCombineMethod() == kPercentage;
}

// Areas stand on the base line, which the axis shows.
void AreaLayerImpl::foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) {
    double low = kNoValue, high = -kNoValue;
    LayerImpl::foldDataRange(axis, isXAxis, &low, &high);
    if (!(low <= high)) return;
    if (!isXAxis) {
        double base = getCombineMethod() == kPercentage ? 0 : getBaseLine();
        low = std::min(low, base);
        high = std::max(high, base);
    }
    *min = std::min(*min, low);
    *max = std::max(*max, high);
}

// ---- Layout ----

AreaLayerImpl::Band *AreaLayerImpl::bandAt(int dataSet) {
    if (dataSet < 0 || dataSet >= countDataSets()) return nullptr;
    while ((int)bands.size() <= dataSet) bands.push_back(new Band());
    return bands[dataSet];
}

const MultiLine *AreaLayerImpl::topOf(int dataSet) {
    getChart()->layout();
    ensurePrepared();
    Band *band = bandAt(dataSet);
    return band ? &band->top : nullptr;
}

const MultiLine *AreaLayerImpl::floorOf(int dataSet) {
    getChart()->layout();
    ensurePrepared();
    Band *band = bandAt(dataSet);
    return band ? &band->floor : nullptr;
}

ClipChain &AreaLayerImpl::getClipper() {
    if (!clipper) clipper = ClipChain::forLayer(*this);
    return *clipper;
}

void AreaLayerImpl::onPrepare() {
    delete clipper;
    clipper = nullptr;
    for (int s = 0; s < countDataSets(); ++s) {
        Band *band = bandAt(s);
        band->top.clear();
        band->floor.clear();
        if (getDataCount() > 0) createBand(s, *band);
        band->top.layout(isSwapped(), getOffsetX(), getOffsetY());
        band->floor.layout(isSwapped(), getOffsetX(), getOffsetY());
    }
}

// The top is walked as a line is; the floor takes the same points.
void AreaLayerImpl::createBand(int dataSet, Band &band) {
    PointPixels top(*this, dataSet), floor(*this, dataSet, true);
    int first = firstPoint(), end = endPoint();
    int left, upper, right, lower;
    getPlotRect(&left, &upper, &right, &lower);
    if (LineWalk::takesColumns(end - first, isSwapped() ? lower - upper : right - left))
        LineWalk::columnsOf(top, first, end, false, band.top);
    else
        LineWalk::plain(top, first, end, false, band.top);
    band.floor.reserve(band.top.size());
    double x, y;
    for (int k = 0; k < band.top.size(); ++k) {
        const MultiLine::Point &p = band.top.at(k);
        if (!floor.pixel(p.index, &x, &y)) y = p.y;
        band.floor.setData(p.x, y, p.index);
        if (p.gapAfter) band.floor.setData(kNoValue, kNoValue, p.index);
    }
}

AreaLayerImpl::Runs AreaLayerImpl::runsOf(const MultiLine &line) {
    Runs runs;
    int begin = 0;
    for (int k = 0; k < line.size(); ++k) {
        if (!line.at(k).gapAfter && k + 1 < line.size()) continue;
        runs.push_back({begin, k + 1});
        begin = k + 1;
    }
    return runs;
}

// ---- Painting ----

void AreaLayerImpl::onPaint(LayerPainter &painter) {
    if (getDataCount() <= 0) return;
    for (int s = 0; s < countDataSets(); ++s) paintBand(s, painter);
    for (int s = 0; s < countDataSets(); ++s) SetSymbols(*this, s, nullptr).paint(painter);
}

void AreaLayerImpl::paintBand(int dataSet, LayerPainter &painter) {
    DataSetImpl *set = dataSetAt(dataSet);
    Band *band = bandAt(dataSet);
    if (!set || !band || band->top.size() == 0) return;
    getDrawArea()->setColorTable(kMainColorEntry, set->getDataColor());
    int fill = set->getDataColor();
    int edge = set->getEdgeColor() != -1 ? set->getEdgeColor() : getBorderColor();
    Runs runs = runsOf(band->top);
    // A gap in the data colour is no gap: the runs fill as one.
    bool joined = gapColor != kTransparent && !painter.isDifferentColor(gapColor, fill);
    if (getDepth() > 0) paintSides(dataSet, *band, runs, painter);
    if (joined) {
        fillRuns(*band, runs, 0, runs.size(), fill, painter);
    } else {
        for (size_t r = 0; r < runs.size(); ++r) fillRuns(*band, runs, r, r + 1, fill, painter);
        if (gapColor != kTransparent) bridgeGaps(*band, runs, painter);
    }
    int width = set->getLineWidth() >= 0 ? set->getLineWidth() : getLineWidth();
    paintEdges(*band, runs, joined, edge, width, painter);
}

void AreaLayerImpl::fillPolygon(const std::vector<double> &x, const std::vector<double> &y,
                                int color, LayerPainter &painter) {
    std::vector<double> cx(x.size()), cy(y.size());
    for (size_t k = 0; k < x.size(); ++k) painter.map(x[k], y[k], &cx[k], &cy[k]);
    const PointBuffer &cut = getClipper().clip(cx.data(), cy.data(), (int)cx.size());
    if (cut.size() < 3) return;
    getDrawArea()->polygon(DoubleArray(cut.getX().data(), cut.size()),
                           DoubleArray(cut.getY().data(), cut.size()), kTransparent, color);
}

// The tops forward, then the floors backward.
void AreaLayerImpl::fillRuns(const Band &band, const Runs &runs, size_t from, size_t to, int color,
                             LayerPainter &painter) {
    std::vector<double> x, y;
    for (size_t r = from; r < to; ++r)
        for (int k = runs[r].first; k < runs[r].second; ++k)
            x.push_back(band.top.at(k).x), y.push_back(band.top.at(k).y);
    // A single point fills nothing.
    if (x.size() < 2) return;
    for (size_t r = to; r-- > from;)
        for (int k = runs[r].second - 1; k >= runs[r].first; --k)
            x.push_back(band.floor.at(k).x), y.push_back(band.floor.at(k).y);
    fillPolygon(x, y, color, painter);
}

void AreaLayerImpl::bridgeGaps(const Band &band, const Runs &runs, LayerPainter &painter) {
    for (size_t r = 1; r < runs.size(); ++r) {
        int a = runs[r - 1].second - 1, b = runs[r].first;
        std::vector<double> x = {band.top.at(a).x, band.top.at(b).x, band.floor.at(b).x,
                                 band.floor.at(a).x};
        std::vector<double> y = {band.top.at(a).y, band.top.at(b).y, band.floor.at(b).y,
                                 band.floor.at(a).y};
        fillPolygon(x, y, gapColor, painter);
    }
}

// The line along the tops, across a gap only where the gap is filled.
void AreaLayerImpl::paintEdges(const Band &band, const Runs &runs, bool joined, int color,
                               int width, LayerPainter &painter) {
    if (width <= 0 || getDrawArea()->getARGBColor(color) == kTransparent) return;
    for (size_t r = 0; r < runs.size(); ++r) {
        for (int k = runs[r].first; k < runs[r].second; ++k) {
            const MultiLine::Point &p = band.top.at(k);
            bool starts = k == runs[r].first && (r == 0 || !joined);
            if (starts)
                painter.initLineTo(p.x, p.y);
            else
                painter.lineTo(p.x, p.y, color, width);
        }
    }
}

void AreaLayerImpl::paintSides(int dataSet, const Band &band, const Runs &runs,
                               LayerPainter &painter) {
    DrawArea *d = getDrawArea();
    DataSetImpl *set = dataSetAt(dataSet);
    int fill = set->getDataColor();
    LineRibbon::Look look;
    look.color = fill;
    look.topColor = d->adjustBrightness(fill, kTopFaceShade);
    look.edgeColor = set->getEdgeColor() != -1 ? set->getEdgeColor() : getBorderColor();
    look.depth = getDepth();
    look.lit = false;
    look.lighting[0] = 1, look.lighting[1] = look.lighting[2] = 0, look.lighting[3] = 1;
    AreaSides sides(painter, look, isSwapped(), d->adjustBrightness(fill, kSideFaceShade));
    std::vector<double> x, top, base;
    for (const auto &run : runs) {
        x.clear(), top.clear(), base.clear();
        for (int k = run.first; k < run.second; ++k) {
            x.push_back(band.top.at(k).x);
            top.push_back(band.top.at(k).y);
            base.push_back(band.floor.at(k).y);
        }
        sides.paintRun(x, top, base);
    }
}

// ---- Labels and hot spots ----

void AreaLayerImpl::collectLabelSpots(std::vector<LabelSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    int left, top, right, bottom;
    getPlotRect(&left, &top, &right, &bottom);
    bool stacked = isStacked();
    for (int s = 0; s < countDataSets(); ++s) {
        PointPixels tops(*this, s), floors(*this, s, true);
        for (int i : labelledPoints(s)) {
            double tx, ty, fx, fy;
            if (!tops.pixel(i, &tx, &ty) || !floors.pixel(i, &fx, &fy)) continue;
            if (stacked && minLabelSize >= 0 && std::fabs(ty - fy) < minLabelSize) continue;
            double ax, ay, bx, by;
            painter.map(tx, ty, &ax, &ay);
            painter.map(fx, stacked ? fy : ty, &bx, &by);
            bool rises = tops.valueAt(i) >= floors.valueAt(i);
            int side = isSwapped() ? (rises ? kRight : kLeft) : (rises ? kTop : kBottom);
            LabelSpot spot = {s,
                              i,
                              dataSetAt(s)->getGroupNo(),
                              false,
                              dataSetAt(s)->valueAt(i),
                              roundPixel(std::min(ax, bx)),
                              roundPixel(std::min(ay, by)),
                              roundPixel(std::max(ax, bx)),
                              roundPixel(std::max(ay, by)),
                              side};
            spot.outside = true;
            spot.keepInside = true;
            spot.insideLeft = left;
            spot.insideRight = right;
            spots.push_back(spot);
        }
    }
}

// Each point owns the slice of its band from halfway to the point before to
// halfway to the point after.
void AreaLayerImpl::collectHotSpots(std::vector<HotSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    for (int s = 0; s < countDataSets(); ++s) {
        const Band &band = *bandAt(s);
        for (const auto &run : runsOf(band.top)) {
            for (int k = run.first; k < run.second; ++k) {
                int before = std::max(k - 1, run.first), after = std::min(k + 1, run.second - 1);
                const MultiLine *edges[2] = {&band.top, &band.floor};
                double x[6], y[6];
                for (int e = 0; e < 2; ++e) {
                    const MultiLine &l = *edges[e];
                    double mx[3] = {(l.at(before).x + l.at(k).x) / 2, l.at(k).x,
                                    (l.at(after).x + l.at(k).x) / 2};
                    double my[3] = {(l.at(before).y + l.at(k).y) / 2, l.at(k).y,
                                    (l.at(after).y + l.at(k).y) / 2};
                    // The floor runs backward, closing the slice.
                    for (int j = 0; j < 3; ++j) {
                        int at = e == 0 ? j : 5 - j;
                        painter.map(mx[j], my[j], &x[at], &y[at]);
                    }
                }
                const PointBuffer &cut = getClipper().clip(x, y, 6);
                HotSpot spot = {s, band.top.at(k).index, {}};
                for (int j = 0; j < cut.size(); ++j) {
                    spot.coords.push_back(roundPixel(cut.getX()[j]));
                    spot.coords.push_back(roundPixel(cut.getY()[j]));
                }
                if (spot.coords.size() >= 6) spots.push_back(spot);
            }
        }
    }
}
