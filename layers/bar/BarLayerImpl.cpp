#include "layers/bar/BarLayerImpl.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/layer/DataSetImpl.h"
#include "chart/symbol/LayerPainter.h"
#include "chart/xy/XYChartImpl.h"
#include "foundation/Constants.h"
#include "layers/bar/BarGeometry.h"
#include "layers/bar/BarLayerIcon.h"

namespace {

const int kPixelLimit = 1 << 28;

int clampPixel(double v) {
    if (!(v > -kPixelLimit)) return -kPixelLimit;
    if (!(v < kPixelLimit)) return kPixelLimit;
    return (int)std::floor(v + 0.5);
}

double given(double v) {
    return std::isfinite(v) ? v : kNoValue;
}

}  // namespace

BarLayerImpl::BarLayerImpl(XYChartImpl *chart)
    : LayerImpl(chart),
      barGap(0.25),
      subBarGap(0.2),
      firstOnTop(false),
      barWidthSetting(0),
      subBarWidthSetting(0),
      minLabelSize(-1),
      minImageMapSize(5),
      roundedCorners{0, 0, 0, 0},
      iconHeight(-1),
      iconWidth(-1),
      groupWidth(0),
      barWidth(0) {}

BarLayerImpl::~BarLayerImpl() {
    clearBars();
}

// ---- Settings ----

void BarLayerImpl::setBarGap(double gap, double subGap) {
    barGap = given(gap);
    if (given(subGap) != kNoValue) subBarGap = subGap;
}

void BarLayerImpl::setBarWidth(int width, int subWidth) {
    barWidthSetting = width;
    subBarWidthSetting = subWidth;
    barGap = kNoValue;
    if (subWidth > 0) subBarGap = kNoValue;
}

void BarLayerImpl::setBarShape(int shape, int dataGroup, int dataItem) {
    barShapes.set(shape, dataGroup, dataItem);
}

void BarLayerImpl::setBarShape2(IntArray shape, int dataGroup, int dataItem) {
    barShapes.setPolygon(shape, dataGroup, dataItem);
}

void BarLayerImpl::setIconSize(int height, int width) {
    iconHeight = height;
    iconWidth = width > 0 ? width : height;
}

void BarLayerImpl::setOverlapRatio(double overlapRatio, bool onTop) {
    firstOnTop = onTop;
    if (std::isfinite(overlapRatio)) subBarGap = -overlapRatio;
}

void BarLayerImpl::setRoundedCorners(int r1, int r2, int r3, int r4) {
    int radii[4] = {r1, r1, 0, 0};
    if (r2 != kOmittedRadius) {
        radii[2] = radii[3] = r2;
        if (r3 != kOmittedRadius) {
            radii[1] = r2;
            radii[2] = r3;
            radii[3] = r4;
        }
    }
    for (int k = 0; k < 4; ++k) roundedCorners[k] = std::max(radii[k], 0);
}

// ---- Layout ----

void BarLayerImpl::preLayout(int length) {
    LayerImpl::preLayout(length);
    // A category of labels owns a slot, its bars in the middle; numbered
    // positions end half a slot beyond the outer bars.
    AxisImpl *x = xAxisImpl();
    x->setDefaultIndent(true);
    if (isXEnumerated()) {
        x->setDefaultExtensions(0, 0, 0);
        x->setDefaultRounding(0, 0);
    }
}

double BarLayerImpl::spacing() const {
    int n = getDataCount();
    double low, high;
    xRange(0, n, &low, &high);
    if (n > 1 && low != kNoValue && high > low) return (high - low) / (n - 1);
    return 1;
}

double BarLayerImpl::positionSpan(double step) const {
    double low, high;
    xRange(0, getDataCount(), &low, &high);
    if (low == kNoValue) return 0;
    return std::fabs(xPixel(high + step / 2) - xPixel(low - step / 2));
}

// Bars take half a spacing on both sides of the outer positions, and stand
// on the base line.
void BarLayerImpl::foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) {
    double low = kNoValue, high = -kNoValue;
    LayerImpl::foldDataRange(axis, isXAxis, &low, &high);
    if (!(low <= high)) return;
    if (isXAxis) {
        double half = spacing() / 2;
        low -= half;
        high += half;
    } else {
        double base = getCombineMethod() == kPercentage ? 0 : getBaseLine();
        low = std::min(low, base);
        high = std::max(high, base);
    }
    *min = std::min(*min, low);
    *max = std::max(*max, high);
}

int BarLayerImpl::barsPerPosition() const {
    int n = getCombineMethod() == kSide ? countDataSets() : getGroupCount();
    return std::max(n, 1);
}

int BarLayerImpl::pixelOf(double value, const AxisImpl *axis) const {
    return clampPixel(yPixel(value, axis));
}

int BarLayerImpl::edgeWordOf(int dataSet) const {
    DataSetImpl *set = dataSetAt(dataSet);
    return set && set->getEdgeColor() != -1 ? set->getEdgeColor() : getBorderColor();
}

void BarLayerImpl::clearBars() {
    for (Bar *bar : bars) delete bar;
    bars.clear();
}

const std::vector<Bar *> &BarLayerImpl::getBars() {
    getChart()->layout();
    ensurePrepared();
    return bars;
}

void BarLayerImpl::onPrepare() {
    clearBars();
    groupWidth = barWidth = 0;
    if (getDataCount() <= 0 || getDataSetCount() == 0) return;
    double step = spacing();
    BarGeometry geometry(barGap, subBarGap, barWidthSetting, subBarWidthSetting, getDataCount(),
                         barsPerPosition(), positionSpan(step));
    groupWidth = geometry.getGroupWidth();
    barWidth = geometry.getBarWidth();
    int first = firstPoint(), end = endPoint();
    if (xAxisImpl()->isReversed()) {
        for (int i = end - 1; i >= first; --i) buildPosition(i, geometry);
    } else {
        for (int i = first; i < end; ++i) buildPosition(i, geometry);
    }
}

// The slot of a position along the x axis: the group's width about its x, or
// in touching mode from the middle to one neighbour to that to the other.
void BarLayerImpl::slotOf(int i, const BarGeometry &geometry, int *left, int *right) const {
    double x = xValue(i);
    int w = geometry.getGroupWidth();
    *left = clampPixel(xPixel(x)) - w / 2;
    *right = *left + w - 1;
    if (!geometry.isTouching()) return;
    double step = spacing();
    double before = i > 0 ? xValue(i - 1) : kNoValue;
    double after = i + 1 < getDataCount() ? xValue(i + 1) : kNoValue;
    int a = clampPixel(xPixel(before != kNoValue ? (before + x) / 2 : x - step / 2));
    int b = clampPixel(xPixel(after != kNoValue ? (after + x) / 2 : x + step / 2));
    *left = std::min(a, b);
    *right = std::max(a, b) - 1;
    // Bars at the ends reach the plot's border when they nearly do.
    int plotLeft, plotTop, plotRight, plotBottom;
    getPlotRect(&plotLeft, &plotTop, &plotRight, &plotBottom);
    int low = isSwapped() ? plotTop - getOffsetY() : plotLeft - getOffsetX();
    int high = isSwapped() ? plotBottom - getOffsetY() : plotRight - getOffsetX();
    if (*left - low < w / 5) *left = low;
    if (high - *right < w / 5) *right = high;
}

void BarLayerImpl::buildPosition(int i, const BarGeometry &geometry) {
    if (xValue(i) == kNoValue) return;
    int left, right;
    slotOf(i, geometry, &left, &right);
    geometry.centreBlock(&left, &right);
    int G = geometry.getBarsPerGroup();
    // Where bars overlap the first one lies on top when it paints last.
    bool lastFirst = firstOnTop && subBarGap < 0 && !geometry.isEvenShare();
    for (int j = 0; j < G; ++j) {
        int k = lastFirst ? G - 1 - j : j;
        // On a swapped chart the first bar stands nearest the x axis's start.
        int slot = isSwapped() ? G - 1 - k : k;
        int start, end;
        geometry.barSpan(left, right, slot, &start, &end);
        if (geometry.isTouching() && G == 1) start = left, end = right;
        buildBar(i, k, start, end);
    }
}

void BarLayerImpl::buildBar(int i, int k, int low, int high) {
    const StackedValues &stacks = getStacks();
    int method = getCombineMethod();
    int first = method == kSide ? k : stacks.groupBegin(k);
    int end = method == kSide ? k + 1 : stacks.groupEnd(k);
    if (first >= end) return;
    AxisImpl *axis = axisOf(first);
    double base = method == kPercentage ? 0 : getBaseLine();
    int direction = getZeroDirection(axis);
    if (method == kDepth) {
        // Each set stands in its own slice.
        for (int s = first; s < end; ++s) {
            Bar *slice =
                new Bar(i, k, low, high, pixelOf(base, axisOf(s)), direction, sliceShift(s));
            addStack(slice, s, s + 1, i);
            bars.push_back(slice);
        }
        return;
    }
    Bar *bar = new Bar(i, k, low, high, pixelOf(base, axis), direction, 0);
    addStack(bar, first, end, i);
    bars.push_back(bar);
}

// The parts of a bar: kStack piles positive values up and negative values
// down from the base, kPercentage piles magnitudes to 100, the others each
// start at the base.
void BarLayerImpl::addStack(Bar *bar, int first, int end, int i) {
    const StackedValues &stacks = getStacks();
    int method = getCombineMethod();
    bool stacked = method == kStack || method == kPercentage;
    double total = stacks.accValue(first, end, i, true);
    double up = method == kPercentage ? 0 : getBaseLine(), down = up;
    for (int s = first; s < end; ++s) {
        double v = stacks.value(s, i);
        if (v == kNoValue) continue;
        const AxisImpl *axis = axisOf(stacked ? first : s);
        double from = getBaseLine(), to = v;
        if (method == kStack) {
            double &pile = v >= 0 ? up : down;
            from = pile;
            to = pile += v;
        } else if (method == kPercentage) {
            from = up;
            to = up += total > 0 ? std::fabs(v) / total * 100 : 0;
        }
        DataSetImpl *set = dataSetAt(s);
        Bar::Segment segment = {pixelOf(from, axis),
                                pixelOf(to, axis),
                                set->getDataColor(),
                                edgeWordOf(s),
                                s,
                                v,
                                false,
                                false};
        bar->addSegment(segment);
    }
    bar->markEnds(stacked);
}

BarLook BarLayerImpl::lookOf(const Bar &bar, const Bar::Segment &segment) const {
    BarLook look;
    look.lineWidth = getLineWidth();
    look.effect = getLightingEffect();
    look.depth = getDepth();
    look.shape = barShapes.find(bar.getDataGroup(), bar.getDataItem());
    for (int k = 0; k < 2; ++k) {
        look.radius[k] = segment.outermost ? roundedCorners[k] : 0;
        look.radius[k + 2] = segment.touchesBase ? roundedCorners[k + 2] : 0;
    }
    return look;
}

// ---- Painting ----

std::vector<Bar *> BarLayerImpl::paintOrder() const {
    std::vector<Bar *> order(bars);
    if (getDepth() <= 0) return order;
    bool swapped = isSwapped();
    std::stable_sort(order.begin(), order.end(), [swapped](const Bar *a, const Bar *b) {
        if (a->getShift() != b->getShift()) return a->getShift() > b->getShift();
        // Across the bars runs x on an upright chart, y on a swapped one.
        return swapped ? a->getLow() > b->getLow() : a->getLow() < b->getLow();
    });
    return order;
}

void BarLayerImpl::onPaint(LayerPainter &painter) {
    BarPainter barPainter(painter.getDrawArea());
    bool flat = getDepth() <= 0;
    for (const Bar *bar : paintOrder()) {
        const std::vector<Bar::Segment> &parts = bar->getSegments();
        // Parts paint from the far left and bottom, so that in 3D each front
        // covers the faces behind it.
        struct Placed {
            const Bar::Segment *segment;
            int x1, y1, x2, y2;
        };
        std::vector<Placed> placed;
        bool flatBar = flat && bar->isFlat();
        for (size_t k = 0; k < parts.size(); ++k) {
            Placed p = {&parts[k], 0, 0, 0, 0};
            if (bar->box(parts[k], painter, flatBar && k + 1 == parts.size(), &p.x1, &p.y1, &p.x2,
                         &p.y2))
                placed.push_back(p);
        }
        std::stable_sort(placed.begin(), placed.end(), [](const Placed &a, const Placed &b) {
            if (a.x1 + a.x2 != b.x1 + b.x2) return a.x1 + a.x2 < b.x1 + b.x2;
            return a.y1 + a.y2 > b.y1 + b.y2;
        });
        for (const Placed &p : placed)
            barPainter.paint(p.x1, p.y1, p.x2, p.y2, bar->endSideOf(*p.segment, isSwapped()),
                             p.segment->fill, p.segment->edge, lookOf(*bar, *p.segment));
    }
}

// ---- Labels, hot spots, keys ----

bool BarLayerImpl::aggregateSpot(const Bar &bar, LabelSpot *spot) {
    const std::vector<Bar::Segment> &parts = bar.getSegments();
    if (parts.empty()) return false;
    double total = 0;
    for (const Bar::Segment &s : parts) total += s.value;
    // The stack's end on the side of its total.
    const Bar::Segment *far = nullptr;
    for (const Bar::Segment &s : parts) {
        if ((s.value >= 0) != (total >= 0)) continue;
        if (!far || std::abs(s.end - bar.getBase()) > std::abs(far->end - bar.getBase())) far = &s;
    }
    if (!far) far = &parts.back();
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    spot->dataSet = far->dataSet;
    spot->dataItem = bar.getDataItem();
    spot->dataGroup =
        getCombineMethod() == kSide ? dataSetAt(far->dataSet)->getGroupNo() : bar.getDataGroup();
    spot->aggregate = true;
    spot->value = total;
    bar.span(bar.getBase(), far->end, painter, &spot->left, &spot->top, &spot->right,
             &spot->bottom);
    spot->endSide = bar.endSideOf(*far, isSwapped());
    return true;
}

void BarLayerImpl::collectLabelSpots(std::vector<LabelSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    int half = getDepth() / 2;
    for (const Bar *bar : bars) {
        size_t from = spots.size();
        for (const Bar::Segment &s : bar->getSegments()) {
            if (minLabelSize > 0 && std::abs(s.end - s.start) < minLabelSize) continue;
            LabelSpot spot = {s.dataSet,
                              bar->getDataItem(),
                              dataSetAt(s.dataSet)->getGroupNo(),
                              false,
                              s.value,
                              0,
                              0,
                              0,
                              0,
                              bar->endSideOf(s, isSwapped())};
            bar->span(s.start, s.end, painter, &spot.left, &spot.top, &spot.right, &spot.bottom);
            spots.push_back(spot);
        }
        LabelSpot total;
        if (aggregateSpot(*bar, &total)) spots.push_back(total);
        // Labels stand in the middle of a 3D bar's depth.
        for (size_t k = from; k < spots.size(); ++k) {
            spots[k].left += half, spots[k].right += half;
            spots[k].top -= half, spots[k].bottom -= half;
        }
    }
}

void BarLayerImpl::collectHotSpots(std::vector<HotSpot> &spots) {
    LayerPainter painter(getDrawArea(), isSwapped(), getOffsetX(), getOffsetY());
    int depth = getDepth();
    for (const Bar *bar : bars) {
        for (const Bar::Segment &s : bar->getSegments()) {
            int x1, y1, x2, y2;
            if (!bar->box(s, painter, true, &x1, &y1, &x2, &y2)) continue;
            // A short end of a stack grows outward to the least size.
            int side = bar->endSideOf(s, isSwapped());
            if (s.outermost && minImageMapSize > 0) {
                if (side == kTop) y1 = std::min(y1, y2 - minImageMapSize + 1);
                if (side == kBottom) y2 = std::max(y2, y1 + minImageMapSize - 1);
                if (side == kLeft) x1 = std::min(x1, x2 - minImageMapSize + 1);
                if (side == kRight) x2 = std::max(x2, x1 + minImageMapSize - 1);
            }
            HotSpot spot = {s.dataSet, bar->getDataItem(), {x1, y1, x2, y2}};
            if (depth > 0)
                spot.coords = {x1,         y2,         x1,         y1,
                               x1 + depth, y1 - depth, x2 + depth, y1 - depth,
                               x2 + depth, y2 - depth, x2,         y2};
            spots.push_back(spot);
        }
    }
}

LegendIcon *BarLayerImpl::makeLegendIcon(int dataSet) {
    DataSetImpl *set = dataSetAt(dataSet);
    if (!set) return nullptr;
    BarLook look;
    look.lineWidth = getLineWidth();
    look.effect = getLightingEffect();
    int group = getCombineMethod() == kSide ? dataSet : set->getGroupNo();
    look.shape = barShapes.find(group, BarShapes::kAll);
    for (int k = 0; k < 4; ++k) look.radius[k] = roundedCorners[k];
    return new BarLayerIcon(set->getDataColor(), edgeWordOf(dataSet), look, iconWidth, iconHeight);
}

bool BarLayerImpl::alignedXPixel(int dataSet, int dataItem, double *pixel) {
    ensurePrepared();
    for (const Bar *bar : bars) {
        if (bar->getDataItem() != dataItem) continue;
        for (const Bar::Segment &s : bar->getSegments()) {
            if (s.dataSet != dataSet) continue;
            *pixel = (bar->getLow() + bar->getHigh()) / 2.0;
            return true;
        }
    }
    return false;
}
