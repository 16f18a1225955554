#include "chart/layer/LayerImpl.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "chart/axis/AxisImpl.h"
#include "chart/layer/DataLabels.h"
#include "chart/layer/DataSetImpl.h"
#include "chart/layer/LayerLegendText.h"
#include "chart/layer/PointFields.h"
#include "chart/legend/LegendBoxImpl.h"
#include "chart/legend/LegendIcon.h"
#include "chart/symbol/LayerPainter.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "foundation/DrawObj.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

const char *const kDefaultQuery =
    "x={x}&xLabel={xLabel}&dataSet={dataSet}&dataSetName={dataSetName}&value={value}";
const char *const kDisabled = "{disable}";
// Legend keys of a layer are numbered within a block of this size, the
// blocks in the order of the layers.
const int kKeysPerLayer = 1000;
const int kMaxLegendBlock = 1 << 20;
const int kLegendIconSize = 10;

bool isDisabled(const char *text) {
    return text && std::string(text) == kDisabled;
}

bool alongX(const AxisImpl *axis) {
    int a = axis->getAlignment();
    return a == kBottom || a == kTop;
}

int roundToInt(double v) {
    const double limit = 1 << 28;
    return (int)std::floor(std::max(-limit, std::min(v, limit)) + 0.5);
}

// The 3D depth a layer takes from the plot's smaller side when none is given.
int automaticDepth(int side) {
    int d = std::max(side / 40, 1);
    if (d < 4) d = side / 30;
    if (d < 4) d = std::max(side / 20, 1);
    return d;
}

}  // namespace

LayerImpl::LayerImpl(XYChartImpl *chart)
    : chart(chart),
      yAxis(nullptr),
      stacks(dataSets),
      dataCombineMethod(kOverlay),
      dataCount(0),
      baseLine(0),
      depth(-1),
      resolvedDepth(0),
      zGap(0),
      plotX(0),
      plotY(0),
      plotWidth(0),
      plotHeight(0),
      swapped(false),
      offsetX(0),
      offsetY(0),
      lineWidth(1),
      borderColor(-2),
      lightingEffect(0),
      legendMode(kNormalLegend),
      layerLegendOrder(-1),
      labels(chart),
      alignedLayer(nullptr),
      alignedDataSet(0),
      mapSet(false),
      prepared(false),
      dataLabels(new DataLabels(this)) {}

LayerImpl::~LayerImpl() {
    delete dataLabels;
    for (DrawObj *obj : drawObjs) obj->release();
    for (DataSetImpl *set : dataSets) delete set;
}

// ---- Settings ----

void LayerImpl::set3D(int d, int gap) {
    depth = d < 0 ? -1 : d;
    zGap = std::max(gap, 0);
}

void LayerImpl::setBorderColor(int color, int effect) {
    borderColor = color;
    lightingEffect = effect;
}

int LayerImpl::validLegendMode(int mode) {
    return mode == kReverseLegend || mode == kNoLegend ? mode : kNormalLegend;
}

void LayerImpl::setLegendOrder(int dataSetOrder, int layerOrder) {
    legendMode = validLegendMode(dataSetOrder);
    layerLegendOrder = layerOrder;
}

const char *LayerImpl::getLegendIcon(int dataSetNo) {
    DataSetImpl *set = dataSetAt(dataSetNo);
    if (!set) return "";
    int edge = set->getEdgeColor() != -1 ? set->getEdgeColor() : borderColor;
    if (edge == -2) edge = set->getDataColor();
    char buffer[160];
    snprintf(buffer, sizeof(buffer), "<*img=@square,width=%d,height=%d,color=%X,edgecolor=%X*>",
             kLegendIconSize, kLegendIconSize, (unsigned)set->getDataColor(), (unsigned)edge);
    scratch = buffer;
    return scratch.c_str();
}

void LayerImpl::moveFront(Layer *layer) {
    chart->getPlotAreaImpl().moveLayer(this, layer ? of(layer) : nullptr, true);
}

void LayerImpl::moveBack(Layer *layer) {
    chart->getPlotAreaImpl().moveLayer(this, layer ? of(layer) : nullptr, false);
}

void LayerImpl::setDataCombineMethod(int method) {
    if (method >= kOverlay && method <= kPercentage) dataCombineMethod = method;
}

DataSet *LayerImpl::addDataSet(DoubleArray data, int color, const char *name) {
    if (dataGroups.empty()) addDataGroup("");
    DataSetImpl *set = new DataSetImpl(this, (int)dataSets.size(), (int)dataGroups.size() - 1,
                                       labels.getDataStyle());
    dataSets.push_back(set);
    set->setData(data);
    set->setDataColor(color, -1, -1, -1);
    set->setDataName(name);
    return set;
}

void LayerImpl::addDataGroup(const char *name) {
    dataGroups.push_back(name ? name : "");
}

void LayerImpl::dataChanged() {
    dataCount = 0;
    for (DataSetImpl *set : dataSets) dataCount = std::max(dataCount, set->size());
}

DataSet *LayerImpl::getDataSet(int i) {
    return dataSetAt(i);
}

DataSetImpl *LayerImpl::dataSetAt(int i) const {
    return i >= 0 && i < (int)dataSets.size() ? dataSets[i] : nullptr;
}

// Sets paint in their order, except that the back slices of a kDepth layer
// paint first.
DataSet *LayerImpl::getDataSetByZ(int z) {
    int n = (int)dataSets.size();
    return dataSetAt(dataCombineMethod == kDepth ? n - 1 - z : z);
}

const std::string &LayerImpl::getGroupName(int g) const {
    static const std::string none;
    return g >= 0 && g < (int)dataGroups.size() ? dataGroups[g] : none;
}

void LayerImpl::setUseYAxis2(bool useYAxis2) {
    yAxis = useYAxis2 ? chart->yAxis2() : nullptr;
}

void LayerImpl::setXData2(double minValue, double maxValue) {
    xPositions.setRange(minValue, maxValue);
}

void LayerImpl::alignLayer(Layer *layer, int dataSet) {
    alignedLayer = layer && layer != this ? of(layer) : nullptr;
    alignedDataSet = dataSet;
}

void LayerImpl::setBaseLine(double v) {
    if (std::isfinite(v) && v != kNoValue) baseLine = v;
}

void LayerImpl::setHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr) {
    mapSet = true;
    mapUrl = url ? url : "";
    mapQuery = queryFormat ? queryFormat : "";
    mapExtra = extraAttr ? extraAttr : "";
}

// ---- Labels ----

void LayerImpl::setDataLabelFormat(const char *formatString) {
    labels.setDataFormat(formatString);
}

TextBox *LayerImpl::setDataLabelStyle(const char *font, double fontSize, int fontColor,
                                      double fontAngle) {
    return labels.setDataStyle(font, fontSize, fontColor, fontAngle);
}

void LayerImpl::setAggregateLabelFormat(const char *formatString) {
    labels.setAggregateFormat(formatString);
}

TextBox *LayerImpl::setAggregateLabelStyle(const char *font, double fontSize, int fontColor,
                                           double fontAngle) {
    return labels.setAggregateStyle(font, fontSize, fontColor, fontAngle);
}

TextBox *LayerImpl::addCustomDataLabel(int dataSet, int dataItem, const char *label,
                                       const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    DataSetImpl *set = dataSetAt(dataSet);
    return labels.addCustomData(dataSet, dataItem, label, font, fontSize, fontColor, fontAngle,
                                set ? set->getLabelStyle() : nullptr);
}

TextBox *LayerImpl::addCustomAggregateLabel(int dataItem, const char *label, const char *font,
                                            double fontSize, int fontColor, double fontAngle) {
    return labels.addCustomAggregate(dataItem, label, font, fontSize, fontColor, fontAngle);
}

TextBox *LayerImpl::addCustomGroupLabel(int dataGroup, int dataItem, const char *label,
                                        const char *font, double fontSize, int fontColor,
                                        double fontAngle) {
    return labels.addCustomGroup(dataGroup, dataItem, label, font, fontSize, fontColor, fontAngle);
}

// ---- Axes and pixels ----

DrawArea *LayerImpl::getDrawArea() const {
    return chart->getRawDrawArea();
}

AxisImpl *LayerImpl::xAxisImpl() const {
    return AxisImpl::of(chart->xAxis());
}

AxisImpl *LayerImpl::layerYAxis() const {
    return AxisImpl::of(yAxis ? yAxis : chart->yAxis());
}

AxisImpl *LayerImpl::axisOf(int dataSet) const {
    DataSetImpl *set = dataSetAt(dataSet);
    return set && set->getUseYAxis() ? AxisImpl::of(set->getUseYAxis()) : layerYAxis();
}

AxisImpl *LayerImpl::getDefaultBaseLineAxis() const {
    AxisImpl *main = AxisImpl::of(chart->yAxis());
    if (dataSets.empty()) return layerYAxis();
    if (dataCombineMethod == kStack) return axisOf(0);
    for (int s = 0; s < (int)dataSets.size(); ++s)
        if (axisOf(s) == main) return main;
    return axisOf(0);
}

double LayerImpl::xPixel(double x) const {
    return chart->getPlotAreaImpl().pixelOf(xAxisImpl(), x);
}

double LayerImpl::yPixel(double value, const AxisImpl *axis) const {
    return chart->getPlotAreaImpl().pixelOf(axis, value);
}

double LayerImpl::pointXPixel(int i) const {
    double px;
    if (alignedLayer && alignedLayer->alignedXPixel(alignedDataSet, i, &px)) return px;
    return xPixel(xValue(i));
}

double LayerImpl::canvasPixel(const AxisImpl *axis, double value) const {
    return yPixel(value, axis) + (alongX(axis) ? offsetX : offsetY);
}

int LayerImpl::getXCoor(double value) {
    return roundToInt(canvasPixel(xAxisImpl(), value));
}

int LayerImpl::getYCoor(double value, Axis *axis) {
    return roundToInt(canvasPixel(axis ? AxisImpl::of(axis) : layerYAxis(), value));
}

int LayerImpl::getYCoor2(double value, bool useYAxis2) {
    return getYCoor(value, useYAxis2 ? chart->yAxis2() : nullptr);
}

int LayerImpl::xZoneColor(double threshold, int belowColor, int aboveColor) {
    return chart->xZoneColor(threshold, belowColor, aboveColor);
}

int LayerImpl::yZoneColor(double threshold, int belowColor, int aboveColor, Axis *axis) {
    return chart->yZoneColor(threshold, belowColor, aboveColor, axis ? axis : layerYAxis());
}

int LayerImpl::yZoneColor2(double threshold, int belowColor, int aboveColor, bool useYAxis2) {
    return yZoneColor(threshold, belowColor, aboveColor, useYAxis2 ? chart->yAxis2() : nullptr);
}

double LayerImpl::getNearestXValue(double coor) {
    if (dataCount <= 0) return kNoValue;
    AxisImpl *axis = xAxisImpl();
    double x = chart->getPlotAreaImpl().valueAt(axis, coor - (alongX(axis) ? offsetX : offsetY));
    int i = xPositions.nearestIndex(x, dataCount);
    return i < 0 ? kNoValue : xValue(i);
}

int LayerImpl::getXIndexOf(double x, double tolerance) {
    return xPositions.indexOf(x, tolerance, dataCount);
}

int LayerImpl::getZeroDirection(AxisImpl *axis) const {
    PlotAreaImpl &plot = chart->getPlotAreaImpl();
    bool horizontal = alongX(axis);
    double low = horizontal ? plot.getLeftX() : plot.getTopY();
    double high = horizontal ? plot.getRightX() : plot.getBottomY();
    double base = std::max(low, std::min(yPixel(baseLine, axis), high));
    if (base <= low) return 1;
    if (base >= high) return 0;
    // Towards higher pixels is where values rise on a swapped chart, and
    // where they fall on an upright one.
    int plain = (axis->isReversed() != swapped) ? 1 : 0;
    bool below = false;
    for (int s = 0; s < (int)dataSets.size(); ++s) {
        if (axisOf(s) != axis) continue;
        for (double v : dataSets[s]->values()) {
            if (v == kNoValue) continue;
            if (v > baseLine) return plain;
            below = below || v < baseLine;
        }
    }
    return below ? plain ^ 1 : plain;
}

void LayerImpl::getPlotRect(int *left, int *top, int *right, int *bottom) const {
    *left = plotX;
    *top = plotY;
    *right = plotX + plotWidth;
    *bottom = plotY + plotHeight;
}

int LayerImpl::getLayerIndex() const {
    return chart->getPlotAreaImpl().indexOfLayer(this);
}

int LayerImpl::firstPoint() const {
    return std::min(chart->getPlotAreaImpl().getTrimStart(), dataCount);
}

int LayerImpl::endPoint() const {
    long long end = (long long)firstPoint() + chart->getPlotAreaImpl().getTrimLength();
    return (int)std::min(end, (long long)dataCount);
}

double LayerImpl::positionOf(int dataSet, int i) const {
    double v = stacks.value(dataSet, i);
    if (v == kNoValue) return kNoValue;
    if (dataCombineMethod == kStack) return stacks.stackBase(dataSet, i, false) + v;
    if (dataCombineMethod != kPercentage) return v;
    int g = dataSets[dataSet]->getGroupNo();
    double total = stacks.accValue(stacks.groupBegin(g), stacks.groupEnd(g), i, true);
    return total == 0 ? 0 : (stacks.stackBase(dataSet, i, true) + std::fabs(v)) / total * 100;
}

std::vector<int> LayerImpl::labelledPoints(int dataSet) const {
    DataSetImpl *set = dataSetAt(dataSet);
    std::vector<int> items;
    if (!set) return items;
    if (labels.hasDataLabels() || set->hasLabels()) {
        for (int i = firstPoint(); i < endPoint(); ++i) items.push_back(i);
        return items;
    }
    for (int i : labels.customDataItems(dataSet))
        if (i >= firstPoint() && i < endPoint()) items.push_back(i);
    return items;
}

double LayerImpl::floorOf(int dataSet, int i) const {
    double v = stacks.value(dataSet, i);
    if (v == kNoValue) return kNoValue;
    if (dataCombineMethod == kStack) return stacks.stackBase(dataSet, i, false);
    if (dataCombineMethod != kPercentage) return baseLine;
    int g = dataSets[dataSet]->getGroupNo();
    double total = stacks.accValue(stacks.groupBegin(g), stacks.groupEnd(g), i, true);
    return total == 0 ? 0 : stacks.stackBase(dataSet, i, true) / total * 100;
}

// ---- Layout ----

int LayerImpl::totalDepth() const {
    if (resolvedDepth <= 0) return 0;
    if (dataCombineMethod != kDepth || dataSets.size() < 2) return resolvedDepth;
    int n = (int)dataSets.size();
    return n * resolvedDepth + (n - 1) * zGap;
}

int LayerImpl::sliceShift(int dataSet) const {
    if (dataCombineMethod != kDepth || resolvedDepth <= 0) return 0;
    return std::max(dataSet, 0) * (resolvedDepth + zGap);
}

void LayerImpl::layoutLegend() {
    assignColors();
    addLegendKeys();
}

void LayerImpl::assignColors() {
    for (DataSetImpl *set : dataSets)
        if (set->getDataColor() == -1) set->settleColor(chart->autoColor());
}

void LayerImpl::addLegendKeys() {
    LegendBoxImpl *legend = chart->getLegendForKeys();
    if (!legend || legendMode == kNoLegend) return;
    int block = layerLegendOrder >= 0 ? layerLegendOrder : getLayerIndex();
    block = std::max(std::min(block, kMaxLegendBlock), 0);
    int n = (int)dataSets.size();
    for (int k = 0; k < n && k < kKeysPerLayer; ++k) {
        int s = legendMode == kReverseLegend ? n - 1 - k : k;
        DataSetImpl *set = dataSets[s];
        if (set->getName().empty()) continue;
        int order = block * kKeysPerLayer + k;
        if (LegendIcon *icon = makeLegendIcon(s))
            legend->addLegendItem(order, new LayerLegendText(this, s), icon);
        else
            legend->addLegendItem(order, new LayerLegendText(this, s), set->getDataColor(),
                                  keyLineWidth(s), &set->getSymbol());
    }
}

int LayerImpl::keyLineWidth(int dataSet) const {
    DataSetImpl *set = dataSetAt(dataSet);
    return set ? set->getLineWidth() : 0;
}

void LayerImpl::preLayout(int) {
    dataChanged();
    // Percentages end at 100.
    if (dataCombineMethod == kPercentage)
        for (int s = 0; s < countDataSets(); ++s) axisOf(s)->setDefaultExtensions(0, 0, 0);
}

void LayerImpl::setSize(int x, int y, int width, int height, bool swapXY) {
    plotX = x;
    plotY = y;
    plotWidth = width;
    plotHeight = height;
    swapped = swapXY;
    PlotAreaImpl &plot = chart->getPlotAreaImpl();
    offsetX = x - plot.getLeftX();
    offsetY = y - plot.getTopY();
    resolvedDepth = depth >= 0 ? depth : automaticDepth(std::min(width, height));
    prepared = false;
}

void LayerImpl::foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) {
    if (isXAxis) {
        double low, high;
        xPositions.range(firstPoint(), endPoint(), dataCount, &low, &high);
        if (low == kNoValue) return;
        *min = std::min(*min, low);
        *max = std::max(*max, high);
        return;
    }
    foldYRange(AxisImpl::of(axis), min, max);
}

// A stack stands on the axis of its group's first set.
void LayerImpl::foldYRange(AxisImpl *axis, double *min, double *max) const {
    int n = (int)dataSets.size();
    bool grouped = dataCombineMethod == kStack || dataCombineMethod == kPercentage;
    std::vector<bool> usesAxis(n);
    for (int s = 0; s < n; ++s) {
        int owner = grouped ? stacks.groupBegin(dataSets[s]->getGroupNo()) : s;
        usesAxis[s] = axisOf(owner) == axis;
    }
    stacks.fold(dataCombineMethod, usesAxis, firstPoint(), endPoint(), min, max);
}

void LayerImpl::layoutChart() {
    DrawArea *d = getDrawArea();
    const int mainColorEntry = kSameAsMainColor & 0xFFFF;
    for (DataSetImpl *set : dataSets) {
        d->setColorTable(mainColorEntry, set->getDataColor());
        DataSymbol &symbol = set->getSymbol();
        symbol.layoutLegend(d);
        symbol.layoutChart(d, set->getDataColor(), set->getEdgeColor());
    }
}

// ---- Painting ----

void LayerImpl::ensurePrepared() {
    if (prepared) return;
    prepared = true;
    onPrepare();
}

void LayerImpl::addDrawObj(DrawObj *obj) {
    if (obj) drawObjs.push_back(obj);
}

void LayerImpl::paint() {
    ensurePrepared();
    std::vector<LabelSpot> spots;
    collectLabelSpots(spots);
    dataLabels->make(spots);
    std::vector<DrawObj *> objects(drawObjs);
    dataLabels->addTo(objects);
    std::stable_sort(objects.begin(), objects.end(), DrawObj::comparator);
    DrawArea *d = getDrawArea();
    size_t k = 0;
    for (; k < objects.size() && objects[k]->getZOrder() <= kBelowDataZ; ++k) objects[k]->paint(d);
    {
        LayerPainter painter(d, swapped, offsetX, offsetY);
        onPaint(painter);
    }
    for (; k < objects.size(); ++k) objects[k]->paint(d);
}

// ---- Templates, hot spots ----

std::string LayerImpl::fillTemplate(const char *text, int flags, const LabelSpot &point) {
    Formatter *formatter = chart->getFormatter();
    PointFields fields(*this, formatter);
    TemplateFieldSource *chartFields = chart->getChartFields();
    VSParser parser(text, flags);
    while (const char *name = parser.getNextAttr()) {
        if (fields.fill(&parser, name, point)) continue;
        int set = point.aggregate ? -1 : point.dataSet;
        if (extraFields.formatAttr(&parser, formatter, set, point.dataItem, name)) continue;
        if (chartFields && chartFields->formatAttr(&parser, formatter, set, point.dataItem, name))
            continue;
        chart->formatCustomAttr(&parser, name);
    }
    return parser.getResult(formatter);
}

std::string LayerImpl::fillSetTemplate(int dataSet, const char *text, int flags) {
    DataSetImpl *set = dataSetAt(dataSet);
    LabelSpot point = {};
    point.dataSet = dataSet;
    point.dataItem = -1;
    point.dataGroup = set ? set->getGroupNo() : 0;
    point.value = kNoValue;
    return fillTemplate(text, flags, point);
}

const char *LayerImpl::getDefaultQueryString() const {
    return kDefaultQuery;
}

std::string LayerImpl::coordsText(const HotSpot &spot, int dx, int dy) const {
    std::string text = spot.isRect() ? "shape=\"rect\" coords=\"" : "shape=\"poly\" coords=\"";
    for (size_t k = 0; k < spot.coords.size(); ++k) {
        if (k) text += ",";
        text += std::to_string(spot.coords[k] + (k % 2 ? dy : dx));
    }
    return text + "\"";
}

const HotSpot *LayerImpl::findHotSpot(int dataSet, int dataItem) {
    chart->layout();
    ensurePrepared();
    hotSpots.clear();
    collectHotSpots(hotSpots);
    for (const HotSpot &spot : hotSpots)
        if (spot.dataSet == dataSet && spot.dataItem == dataItem) return &spot;
    return nullptr;
}

const char *LayerImpl::getImageCoor(int dataSet, int dataItem, int offsetX, int offsetY) {
    const HotSpot *spot = findHotSpot(dataSet, dataItem);
    scratch = spot ? coordsText(*spot, offsetX, offsetY) : "";
    return scratch.c_str();
}

// The box around every hot spot at the position.
const char *LayerImpl::getImageCoor2(int dataItem, int offsetX, int offsetY) {
    findHotSpot(-1, -1);
    HotSpot box = {-1, dataItem, {}};
    // Rectangles and polygons alike list x before y.
    for (const HotSpot &spot : hotSpots) {
        if (spot.dataItem != dataItem || spot.coords.size() < 2) continue;
        if (box.coords.empty())
            box.coords = {spot.coords[0], spot.coords[1], spot.coords[0], spot.coords[1]};
        for (size_t k = 0; k < spot.coords.size(); ++k) {
            int i = k % 2, v = spot.coords[k];
            box.coords[i] = std::min(box.coords[i], v);
            box.coords[i + 2] = std::max(box.coords[i + 2], v);
        }
    }
    scratch = box.coords.empty() ? "" : coordsText(box, offsetX, offsetY);
    return scratch.c_str();
}

const char *LayerImpl::getHTMLImageMap(const char *url, const char *queryFormat,
                                       const char *extraAttr, int offsetX, int offsetY) {
    if (mapSet) {
        url = mapUrl.c_str();
        queryFormat = mapQuery.c_str();
        extraAttr = mapExtra.c_str();
    }
    scratch.clear();
    if (isDisabled(url) || isDisabled(queryFormat)) return scratch.c_str();
    findHotSpot(-1, -1);
    std::string query = replaceString(combineQuery(queryFormat, getDefaultQueryString()).c_str(),
                                      "{none}", getDefaultQueryString());
    std::string map;
    for (const HotSpot &spot : hotSpots) {
        LabelSpot point = {};
        point.dataSet = spot.dataSet;
        point.dataItem = spot.dataItem;
        DataSetImpl *set = dataSetAt(spot.dataSet);
        point.dataGroup = set ? set->getGroupNo() : 0;
        point.value = stacks.value(spot.dataSet, spot.dataItem);
        std::string href =
            urlJoin(url, fillTemplate(query.c_str(), VSParser::kEscapeURL, point).c_str());
        std::string extra = fillTemplate(extraAttr ? extraAttr : "", VSParser::kEscapeHTML, point);
        map += "<area " + coordsText(spot, offsetX, offsetY) + " href=\"" + href + "\"" +
               (extra.empty() ? "" : " " + extra) + ">\n";
    }
    scratch = map;
    return scratch.c_str();
}
