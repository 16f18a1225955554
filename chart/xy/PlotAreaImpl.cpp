#include "chart/xy/PlotAreaImpl.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/xy/PlotLayer.h"
#include "chart/xy/PlotPacker.h"
#include "chart/xy/SymmetricScales.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

namespace {

const int kUnlimited = 0x7FFFFFFF;

bool isSide(int a) {
    return a == kBottom || a == kLeft || a == kRight || a == kTop;
}

bool standsAlongX(const AxisImpl *axis) {
    int a = axis->getAlignment();
    return a == kBottom || a == kTop;
}

int roundToInt(double v) {
    const double limit = 1 << 28;
    return (int)std::floor(std::max(-limit, std::min(v, limit)) + 0.5);
}

}  // namespace

PlotAreaImpl::PlotAreaImpl(BaseChart *chart, DrawArea *drawArea, const Formatter *formatter,
                           TemplateFieldSource *fields)
    : chart(chart),
      drawArea(drawArea),
      formatter(formatter),
      fields(fields),
      yAxisOnRight(false),
      xAxisOnTop(false),
      swapXY(false),
      axisAtOrigin(0),
      symmetryMode(0),
      x(0),
      y(0),
      width(0),
      height(0),
      plotRectSet(false),
      depthX(0),
      depthY(0),
      clipMargin(kNoClipping),
      trimStart(0),
      trimLength(kUnlimited),
      xGridAxis(nullptr),
      yGridAxis(nullptr),
      gridMoved(false),
      gridBefore(nullptr),
      layersPrepared(false),
      axesLaidOut(false) {
    for (int side : {kBottom, kTop, kLeft, kRight}) axes.push_back(makeAxis(side));
}

PlotAreaImpl::~PlotAreaImpl() {
    for (PlotLayer *layer : layers) layer->release();
    for (AxisImpl *axis : axes) axis->destroy();
}

AxisImpl *PlotAreaImpl::makeAxis(int alignment) {
    AxisImpl *axis = AxisImpl::of(Axis::create(chart, drawArea, formatter));
    axis->setAlignment(alignment);
    axis->setFieldSource(fields);
    return axis;
}

// ---- Look ----

void PlotAreaImpl::setBackground(int color, int altBgColor, int edgeColor) {
    background.setBackground(color, altBgColor, edgeColor);
}

void PlotAreaImpl::setBackground2(const char *path, int align) {
    background.setImage(path, align);
}

void PlotAreaImpl::set4QBgColor(int q1, int q2, int q3, int q4, int edgeColor) {
    const int colors[4] = {q1, q2, q3, q4};
    background.set4QBgColor(colors, edgeColor);
}

void PlotAreaImpl::setAltBgColor(bool horizontal, int color1, int color2, int edgeColor) {
    background.setAltBgColor(horizontal, color1, color2, edgeColor);
}

void PlotAreaImpl::setGridColor(int h, int v, int minorH, int minorV) {
    grid.setColor(h, v, minorH, minorV);
}

void PlotAreaImpl::setGridWidth(int h, int v, int minorH, int minorV) {
    grid.setWidth(h, v, minorH, minorV);
}

void PlotAreaImpl::setGridAxis(Axis *xGrid, Axis *yGrid) {
    xGridAxis = xGrid;
    yGridAxis = yGrid;
}

void PlotAreaImpl::moveGridBefore(Layer *layer) {
    gridMoved = true;
    gridBefore = layer;
}

// ---- Axes ----

AxisImpl *PlotAreaImpl::getAxis(int i) const {
    return i >= 0 && i < (int)axes.size() ? axes[i] : nullptr;
}

// The x axes are the bottom and top ones, the y axes the left and right ones;
// swapXY trades the pairs.  The flag takes the second of the pair as the first.
AxisImpl *PlotAreaImpl::standard(bool xRole, bool primary) const {
    int first = swapXY == xRole ? kLeftAxis : kBottomAxis;
    bool flipped = xRole ? xAxisOnTop : yAxisOnRight;
    return axes[first + (primary == flipped ? 1 : 0)];
}

AxisImpl *PlotAreaImpl::addAxis(int alignment, int offset) {
    if (!isSide(alignment)) return nullptr;
    AxisImpl *axis = makeAxis(alignment);
    switch (alignment) {
        case kBottom:
            axis->setOffset(0, offset);
            break;
        case kLeft:
            axis->setOffset(-offset, 0);
            break;
        case kRight:
            axis->setOffset(offset, 0);
            break;
        default:
            axis->setOffset(0, -offset);
            break;
    }
    axes.push_back(axis);
    return axis;
}

void PlotAreaImpl::setAxisAtOrigin(int originMode, int symmetry) {
    axisAtOrigin = originMode;
    symmetryMode = symmetry;
}

// ---- Rectangle ----

void PlotAreaImpl::setPlotRect(int px, int py, int w, int h) {
    x = px;
    y = py;
    width = std::max(w, 0);
    height = std::max(h, 0);
    plotRectSet = true;
    if (axesLaidOut) layoutAxes();
}

void PlotAreaImpl::setTrimData(int startPos, int len) {
    trimStart = std::max(startPos, 0);
    trimLength = std::max(len, 0);
}

PlotFrame PlotAreaImpl::getFrame() const {
    return PlotFrame{x, y, width, height, depthX, depthY};
}

// ---- Layers ----

void PlotAreaImpl::addLayer(PlotLayer *layer) {
    if (layer) layers.push_back(layer);
}

PlotLayer *PlotAreaImpl::getLayer(int i) const {
    return i >= 0 && i < (int)layers.size() ? layers[i] : nullptr;
}

int PlotAreaImpl::indexOfLayer(const PlotLayer *layer) const {
    auto at = std::find(layers.begin(), layers.end(), layer);
    return at == layers.end() ? -1 : (int)(at - layers.begin());
}

// The first layer in the list stands in front.
void PlotAreaImpl::moveLayer(PlotLayer *layer, PlotLayer *other, bool front) {
    int from = indexOfLayer(layer);
    if (from < 0 || layer == other) return;
    layers.erase(layers.begin() + from);
    int to = other ? indexOfLayer(other) : -1;
    if (to < 0)
        to = front ? 0 : (int)layers.size();
    else if (!front)
        ++to;
    layers.insert(layers.begin() + to, layer);
}

// ---- Layout ----

void PlotAreaImpl::layoutLegend() {
    for (PlotLayer *layer : layers) layer->layoutLegend();
}

void PlotAreaImpl::prepareLayers() {
    if (layersPrepared) return;
    layersPrepared = true;
    int length = swapXY ? height : width;
    for (PlotLayer *layer : layers) layer->preLayout(length);
}

void PlotAreaImpl::layoutAxes() {
    prepareLayers();
    // Layers stack in depth: each later one stands further back.
    depthX = depthY = 0;
    for (PlotLayer *layer : layers) {
        layer->setSize(x + depthX, y - depthY, width, height, swapXY);
        depthX += layer->getDepthX();
        depthY += layer->getDepthY();
    }
    placeAxes();
    layoutScales();
    // Axes at the origin stand where the scales put 0.
    placeAxes();
    PlotFrame plot = getFrame();
    for (AxisImpl *axis : axes) axis->placeMarks(plot);
    axesLaidOut = true;
}

void PlotAreaImpl::layoutLayers() {
    for (PlotLayer *layer : layers) layer->layoutChart();
}

void PlotAreaImpl::dataRange(AxisImpl *axis, double *min, double *max) const {
    *min = kNoValue;
    *max = -kNoValue;
    bool isX = axis == xAxis();
    for (PlotLayer *layer : layers) layer->foldDataRange(axis, isX, min, max);
    if (!(*min <= *max) || *min == kNoValue || *max == -kNoValue) *min = *max = kNoValue;
}

// Axes that follow another lay out after those that do not, so that they find
// their targets' scales made.
void PlotAreaImpl::layoutScales() {
    std::vector<double> mins(axes.size()), maxs(axes.size());
    for (size_t i = 0; i < axes.size(); ++i) dataRange(axes[i], &mins[i], &maxs[i]);
    size_t xi = std::find(axes.begin(), axes.end(), xAxis()) - axes.begin();
    size_t yi = std::find(axes.begin(), axes.end(), yAxis()) - axes.begin();
    SymmetricScales::apply(symmetryMode, &mins[xi], &maxs[xi], &mins[yi], &maxs[yi]);
    for (bool following : {false, true})
        for (size_t i = 0; i < axes.size(); ++i) {
            int mode = axes[i]->getScaleMode();
            bool follows = mode == AxisImpl::kSynchronised || mode == AxisImpl::kCopied;
            if (follows == following) axes[i]->layoutScale(mins[i], maxs[i]);
        }
}

// Bottom and left axes stand at the front of a 3D plot, top and right ones at
// its back wall.
int PlotAreaImpl::edgeOf(int side) const {
    switch (side) {
        case kTop:
            return y - depthY;
        case kLeft:
            return x;
        case kRight:
            return x + width + depthX;
        default:
            return y + height;
    }
}

void PlotAreaImpl::placeAxes() {
    for (AxisImpl *axis : axes) {
        int side = axis->getAlignment();
        axis->setLength(standsAlongX(axis) ? width : height);
        AxisPainter &painter = axis->getPainter();
        if (side == kTop)
            painter.setPosition(x + depthX, edgeOf(kTop));
        else if (side == kRight)
            painter.setPosition(edgeOf(kRight), y + height - depthY);
        else
            painter.setPosition(x, y + height);
    }
    if (axisAtOrigin & kXAxisAtOrigin) placeAtOrigin(xAxis(), yAxis());
    if (axisAtOrigin & kYAxisAtOrigin) placeAtOrigin(yAxis(), xAxis());
}

// The axis moves across the plot to where the other axis has 0, if that lies
// on the plot.
void PlotAreaImpl::placeAtOrigin(AxisImpl *axis, const AxisImpl *across) {
    if (standsAlongX(axis) == standsAlongX(across)) return;
    double zero = pixelOf(across, 0);
    AxisPainter &painter = axis->getPainter();
    if (standsAlongX(axis)) {
        if (zero >= y && zero <= y + height) painter.setPosition(x, roundToInt(zero));
    } else if (zero >= x && zero <= x + width) {
        painter.setPosition(roundToInt(zero), y + height);
    }
}

int PlotAreaImpl::sideNeed(int side) {
    int need = 0;
    for (AxisImpl *axis : axes) {
        if (axis->getAlignment() != side) continue;
        AxisPainter &painter = axis->getPainter();
        // An axis moved into the plot needs that much less outside it.
        bool alongX = side == kBottom || side == kTop;
        int place = alongX ? painter.getY() : painter.getX();
        int inside =
            side == kBottom || side == kRight ? edgeOf(side) - place : place - edgeOf(side);
        need = std::max(need, axis->getThickness() - inside);
    }
    return need;
}

void PlotAreaImpl::packPlotArea(int leftX, int topY, int rightX, int bottomY, int minWidth,
                                int minHeight) {
    // The axes are measured on the box itself, so that their scales and the
    // labels they keep are close to those of the packed plot.
    if (leftX < rightX) {
        x = leftX;
        width = rightX - leftX;
    }
    if (topY < bottomY) {
        y = topY;
        height = bottomY - topY;
    }
    layoutAxes();
    if (leftX < rightX) {
        PlotSpan span =
            PlotPacker::fit(leftX, rightX, sideNeed(kLeft), sideNeed(kRight), depthX, minWidth);
        x = span.start;
        width = span.length;
    }
    if (topY < bottomY) {
        // The back wall rises by depthY, towards the top.
        PlotSpan span =
            PlotPacker::fit(topY, bottomY, sideNeed(kTop), sideNeed(kBottom), -depthY, minHeight);
        y = span.start;
        height = span.length;
    }
    plotRectSet = true;
    layoutAxes();
}

// ---- Coordinates ----

double PlotAreaImpl::pixelOf(const AxisImpl *axis, double value) const {
    double coor = axis->getCoor(value);
    return standsAlongX(axis) ? x + coor : y + height - coor;
}

double PlotAreaImpl::valueAt(const AxisImpl *axis, double pixel) const {
    return axis->getValue(standsAlongX(axis) ? pixel - x : y + height - pixel);
}

int PlotAreaImpl::zoneColor(AxisImpl *axis, double threshold, int belowColor, int aboveColor) {
    if (!axesLaidOut) layoutAxes();
    int boundary = roundToInt(pixelOf(axis, threshold));
    // Which way the values rise on the canvas.
    bool rising = pixelOf(axis, axis->getMaxValue()) >= pixelOf(axis, axis->getMinValue());
    if (standsAlongX(axis))
        return rising ? drawArea->xZoneColor(boundary, belowColor, aboveColor)
                      : drawArea->xZoneColor(boundary, aboveColor, belowColor);
    return rising ? drawArea->yZoneColor(boundary, belowColor, aboveColor)
                  : drawArea->yZoneColor(boundary, aboveColor, belowColor);
}

double PlotAreaImpl::getNearestXValue(double coor) {
    for (PlotLayer *layer : layers)
        if (layer->hasXData()) return layer->getNearestXValue(coor);
    return kNoValue;
}

// ---- Painting ----

std::vector<AxisImpl *> PlotAreaImpl::passOrder() const {
    std::vector<AxisImpl *> order(axes.rbegin(), axes.rend() - 4);
    for (int i = 0; i < 4; ++i) order.push_back(axes[i]);
    return order;
}

AxisImpl *PlotAreaImpl::gridAxis(bool horizontalLines) const {
    for (Axis *a :
         {xGridAxis ? xGridAxis : (Axis *)xAxis(), yGridAxis ? yGridAxis : (Axis *)yAxis()}) {
        AxisImpl *axis = AxisImpl::of(a);
        if (standsAlongX(axis) != horizontalLines) return axis;
    }
    return nullptr;
}

std::vector<double> PlotAreaImpl::bandEdges() const {
    std::vector<double> edges;
    AxisImpl *axis = gridAxis(background.hasHorizontalBands());
    if (!axis) return edges;
    for (const auto &tick : axis->getTickMap()) {
        if (tick.second.flags & AxisLabel::kMinorTick) continue;
        double coor = axis->getCoor(tick.first);
        if (std::isfinite(coor)) edges.push_back(coor);
    }
    std::sort(edges.begin(), edges.end());
    return edges;
}

// How many layers paint before the grid: 0 unless moved.
int PlotAreaImpl::gridOffset() const {
    if (!gridMoved) return 0;
    int n = (int)layers.size();
    if (!gridBefore) return n;
    for (int i = 0; i < n; ++i)
        if (layers[i]->getLayer() == gridBefore) return n - 1 - i;
    return 0;
}

void PlotAreaImpl::paintGrid(DrawArea *d, const PlotFrame &plot) {
    AxisImpl *h = gridAxis(true), *v = gridAxis(false);
    grid.paint(d, plot, v);
    grid.paint(d, plot, h);
}

void PlotAreaImpl::paintBackdrop() {
    PlotFrame plot = getFrame();
    AxisImpl *alongX = standsAlongX(xAxis()) ? xAxis() : yAxis();
    AxisImpl *alongY = alongX == xAxis() ? yAxis() : xAxis();
    background.paintWalls(drawArea, plot);
    background.paint(drawArea, plot, bandEdges(), pixelOf(alongX, 0), pixelOf(alongY, 0));
    std::vector<AxisImpl *> order = passOrder();
    for (AxisImpl *axis : order) axis->paintZones(drawArea, plot);
    if (gridOffset() == 0) paintGrid(drawArea, plot);
    for (AxisImpl *axis : order) axis->paintMarks(drawArea, plot, false);
}

void PlotAreaImpl::paintLayers() {
    PlotFrame plot = getFrame();
    bool clipped = clipMargin != kNoClipping;
    if (clipped) {
        long long m = clipMargin;
        auto clamp = [](long long v) {
            return (int)std::max(std::min(v, 1LL << 28), -(1LL << 28));
        };
        drawArea->setClipRect(clamp(x - m), clamp((long long)y - depthY - m),
                              clamp((long long)x + width + depthX + m),
                              clamp((long long)y + height + m));
    }
    int n = (int)layers.size(), offset = gridOffset();
    for (int k = 0; k < n; ++k) {
        if (k == offset && offset > 0) paintGrid(drawArea, plot);
        layers[n - 1 - k]->paint();
    }
    if (offset == n && n > 0) paintGrid(drawArea, plot);
    if (clipped) drawArea->setClipRect(0, 0, kUnlimited, kUnlimited);
    for (int k = n - 1; k >= 0; --k) layers[k]->paintAbove();
}

void PlotAreaImpl::paintFront() {
    PlotFrame plot = getFrame();
    background.paintEdge(drawArea, plot);
    for (auto axis = axes.rbegin(); axis != axes.rend(); ++axis) (*axis)->paintAxis(drawArea);
    for (AxisImpl *axis : passOrder()) axis->paintMarks(drawArea, plot, true);
}
