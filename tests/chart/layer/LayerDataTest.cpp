#include <gtest/gtest.h>

#include <cmath>

#include "chart/axis/AxisImpl.h"
#include "chart/layer/XPositions.h"
#include "tests/chart/layer/LayerTestSupport.h"

namespace {

DoubleArray values(const std::vector<double> &v) {
    return DoubleArray(v.data(), (int)v.size());
}

}  // namespace

TEST(LayerData, NoDataSetsGiveNoExtremesAndTheDefaultScale) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    double min, max;
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(min, kNoValue);
    EXPECT_EQ(max, -kNoValue);
    rangeOf(layer, chart->xAxis(), true, &min, &max);
    EXPECT_EQ(min, kNoValue);
    chart->layoutAxes();
    EXPECT_EQ(chart->yAxis()->getMinValue(), 0);
    EXPECT_EQ(chart->yAxis()->getMaxValue(), 100);
    EXPECT_EQ(chart->yAxis()->getTicks().len, 0);
}

TEST(LayerData, StacksFoldEachSignApartAndPercentagesSpanAHundred) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> a = {1, 5}, b = {-2, kNoValue}, c = {3, -9};
    layer->addDataSet(values(a), -1, "a");
    layer->addDataSet(values(b), -1, "b");
    layer->addDataSet(values(c), -1, "c");
    double min, max;
    layer->setDataCombineMethod(kStack);
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    // Point 0 piles 1 + 3 up and -2 down; point 1 has 5 up and -9 down.
    EXPECT_EQ(max, 5);
    EXPECT_EQ(min, -9);
    chart->setTrimData(0, 1);
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(max, 4);
    EXPECT_EQ(min, -2);
    chart->setTrimData(0, 0x7FFFFFFF);

    layer->setDataCombineMethod(kPercentage);
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 100);
    layer->setDataCombineMethod(kOverlay);
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(min, -9);
    EXPECT_EQ(max, 5);
    // A second group stacks on its own.
    layer->setDataCombineMethod(kStack);
    layer->addDataGroup("second");
    std::vector<double> d = {10, 1}, e = {20, kNoValue};
    layer->addDataSet(values(d), -1, "d");
    layer->addDataSet(values(e), -1, "e");
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(max, 30);
    EXPECT_EQ(min, -9);
    // An unknown method is not taken.
    layer->setDataCombineMethod(9);
    EXPECT_EQ(layer->getCombineMethod(), kStack);
}

TEST(LayerData, SetsFoldIntoTheAxesTheyUse) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> a = {1, 2}, b = {50, 70};
    layer->addDataSet(values(a), -1, "a");
    DataSet *second = layer->addDataSet(values(b), -1, "b");
    second->setUseYAxis2(true);
    EXPECT_EQ(second->getUseYAxis(), chart->yAxis2());
    double min, max;
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(max, 2);
    rangeOf(layer, chart->yAxis2(), false, &min, &max);
    EXPECT_EQ(min, 50);
    EXPECT_EQ(max, 70);
    // A stack stands on the axis of its group's first set.
    layer->setDataCombineMethod(kStack);
    rangeOf(layer, chart->yAxis(), false, &min, &max);
    EXPECT_EQ(max, 72);
    rangeOf(layer, chart->yAxis2(), false, &min, &max);
    EXPECT_EQ(min, kNoValue);
    // The layer's own axis.
    layer->setUseYAxis2(true);
    rangeOf(layer, chart->yAxis2(), false, &min, &max);
    EXPECT_EQ(max, 72);
    EXPECT_EQ(layer->layerYAxis(), AxisImpl::of(chart->yAxis2()));
    // x: the positions of the points.
    layer->setXData2(100, 200);
    rangeOf(layer, chart->xAxis(), true, &min, &max);
    EXPECT_EQ(min, 100);
    EXPECT_EQ(max, 200);
}

TEST(LayerData, XPositionsFromValuesRangesOrIndices) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> one = {7};
    layer->addDataSet(values(one), -1, "");
    EXPECT_EQ(layer->getXPosition(0), 0);
    EXPECT_TRUE(layer->isXEnumerated());
    layer->setXData2(10, 20);
    EXPECT_EQ(layer->getXPosition(0), 15);
    EXPECT_EQ(layer->getXPosition(1), kNoValue);
    std::vector<double> three = {1, 2, 3};
    layer->getDataSet(0)->setData(values(three));
    EXPECT_EQ(layer->getXPosition(1), 15);
    EXPECT_EQ(layer->getXPosition(2), 20);
    EXPECT_EQ(layer->getXPosition(3), kNoValue);
    EXPECT_EQ(layer->getXPosition(-1), kNoValue);
    // Data longer than the x values: the tail has no position.
    std::vector<double> x = {1.5, 2.5};
    layer->setXData(values(x));
    EXPECT_EQ(layer->getXPosition(1), 2.5);
    EXPECT_EQ(layer->getXPosition(2), kNoValue);
    EXPECT_EQ(layer->getXIndexOf(2.4, 0.2), 1);
    EXPECT_EQ(layer->getXIndexOf(2.0, 0.2), -1);
}

TEST(XPositions, NearestPointsTieToTheLowerIndex) {
    XPositions p;
    const double ascending[] = {0, 10, 20, 40};
    p.setValues(DoubleArray(ascending, 4));
    EXPECT_EQ(p.nearestIndex(5, 4), 0);
    EXPECT_EQ(p.nearestIndex(6, 4), 1);
    EXPECT_EQ(p.nearestIndex(-50, 4), 0);
    EXPECT_EQ(p.nearestIndex(99, 4), 3);
    EXPECT_EQ(p.nearestIndex(30, 4), 2);
    // Not ascending: searched point by point, with the same tie rule.
    const double mixed[] = {40, 0, kNoValue, 10};
    p.setValues(DoubleArray(mixed, 4));
    EXPECT_EQ(p.nearestIndex(5, 4), 1);
    EXPECT_EQ(p.nearestIndex(26, 4), 0);
    double min, max;
    p.range(0, 4, 4, &min, &max);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 40);
    // Spread and enumerated positions.
    XPositions spread;
    spread.setRange(100, 0);
    EXPECT_EQ(spread.at(1, 3), 50);
    EXPECT_EQ(spread.nearestIndex(75, 3), 0);
    EXPECT_EQ(spread.nearestIndex(74, 3), 1);
    spread.range(0, 3, 3, &min, &max);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 100);
    XPositions index;
    EXPECT_EQ(index.nearestIndex(1.5, 3), 1);
    EXPECT_EQ(index.nearestIndex(kNoValue, 3), 2);
    EXPECT_EQ(index.nearestIndex(1, 0), -1);
    index.range(2, 1, 3, &min, &max);
    EXPECT_EQ(min, kNoValue);
}

TEST(LayerData, GroupsSumsAndStackPositions) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> a = {2, 0, 5}, b = {-3, 0, kNoValue}, c = {4, 0, 1}, d = {6, 1};
    layer->addDataSet(values(a), -1, "a");
    layer->addDataSet(values(b), -1, "b");
    layer->addDataSet(values(c), -1, "c");
    layer->addDataGroup("g1");
    layer->addDataGroup("g2");
    layer->addDataSet(values(d), -1, "d");
    const StackedValues &s = layer->getStacks();
    EXPECT_EQ(s.groupBegin(0), 0);
    EXPECT_EQ(s.groupEnd(0), 3);
    // The empty group and unknown groups give the number of sets.
    EXPECT_EQ(s.groupBegin(1), 4);
    EXPECT_EQ(s.groupEnd(1), 4);
    EXPECT_EQ(s.groupBegin(2), 3);
    EXPECT_EQ(s.groupEnd(2), 4);
    EXPECT_EQ(s.groupBegin(7), 4);
    EXPECT_EQ(s.groupBegin(-1), 0);
    EXPECT_EQ(s.groupEnd(-1), 4);
    EXPECT_EQ(layer->getGroupName(2), "g2");
    EXPECT_EQ(layer->getGroupName(5), "");
    EXPECT_EQ(s.accValue(0, 3, 0, false), 3);
    EXPECT_EQ(s.accValue(0, 3, 0, true), 9);
    EXPECT_EQ(s.accValue(0, 3, 2, false), 6);
    EXPECT_EQ(s.countAllZero(0, 3, 1), 3);
    EXPECT_EQ(s.countAllZero(0, 4, 1), -1);
    EXPECT_EQ(s.countAllZero(1, 2, 2), 0);
    EXPECT_EQ(s.value(3, 2), kNoValue);
    EXPECT_EQ(s.value(9, 0), kNoValue);

    layer->setDataCombineMethod(kStack);
    // Negative values pile below, apart from the positive ones.
    EXPECT_EQ(layer->getDataSet(2)->getPosition(0), 6);
    EXPECT_EQ(layer->getDataSet(1)->getPosition(0), -3);
    EXPECT_EQ(layer->getDataSet(1)->getPosition(2), kNoValue);
    layer->setDataCombineMethod(kPercentage);
    EXPECT_NEAR(layer->getDataSet(1)->getPosition(0), 5.0 / 9 * 100, 1e-9);
    EXPECT_NEAR(layer->getDataSet(2)->getPosition(0), 100, 1e-9);
    layer->setDataCombineMethod(kOverlay);
    EXPECT_EQ(layer->getDataSet(2)->getPosition(0), 4);
}

TEST(LayerData, DataSetsKeepTheirSettings) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    SquareLayer *other = SquareLayer::add(chart.get());
    std::vector<double> a = {1, std::nan(""), 3};
    DataSet *first = other->addDataSet(values(a), -1, "first");
    DataSet *named = layer->addDataSet(values(a), 0x123456, "named");
    DataSet *automatic = layer->addDataSet(values(a), -1, nullptr);
    EXPECT_EQ(first->getValue(1), kNoValue);
    EXPECT_EQ(first->getValue(3), kNoValue);
    EXPECT_EQ(first->getValue(-1), kNoValue);
    EXPECT_STREQ(automatic->getDataName(), "");
    EXPECT_EQ(automatic->getDataColor(), -1);
    EXPECT_EQ(layer->getDataCount(), 3);
    std::vector<double> longer(6, 1.0);
    automatic->setData(values(longer));
    EXPECT_EQ(layer->getDataCount(), 6);
    // Unset colours take the palette's data colours in the order of the layers.
    chart->layoutLegend();
    EXPECT_EQ(named->getDataColor(), 0x123456);
    EXPECT_EQ(automatic->getDataColor(), kDataColor);
    EXPECT_EQ(first->getDataColor(), kDataColor + 1);
    EXPECT_EQ(layer->getDataSet(2), nullptr);
    EXPECT_EQ(layer->getDataSetByZ(0), named);
    layer->setDataCombineMethod(kDepth);
    EXPECT_EQ(layer->getDataSetByZ(0), automatic);
}

TEST(LayerData, ZeroDirectionFollowsTheBaseLineAndTheData) {
    Owned<XYChartImpl> chart(newLayerChart());
    SquareLayer *layer = SquareLayer::add(chart.get());
    std::vector<double> up = {3, 0}, down = {-3, 0};
    DataSet *set = layer->addDataSet(values(up), -1, "");
    AxisImpl *y = AxisImpl::of(chart->yAxis());
    // The base at the bottom of the plot: bars of no length grow up, to lower pixels.
    y->setLinearScale(0, 10, 5, 0);
    chart->layoutAxes();
    EXPECT_EQ(layer->getZeroDirection(y), 0);
    layer->setBaseLine(10);
    EXPECT_EQ(layer->getZeroDirection(y), 1);
    layer->setBaseLine(std::nan(""));
    EXPECT_EQ(layer->getBaseLine(), 10);
    layer->setBaseLine(0);
    y->setLinearScale(-10, 10, 5, 0);
    chart->layoutAxes();
    EXPECT_EQ(layer->getZeroDirection(y), 0);
    set->setData(values(down));
    EXPECT_EQ(layer->getZeroDirection(y), 1);
    y->setReverse(true);
    EXPECT_EQ(layer->getZeroDirection(y), 0);

    // Bars take their base from the main y axis while a set uses it, from the
    // first set's axis when they stack or none does.
    layer->addDataSet(values(up), -1, "")->setUseYAxis2(true);
    EXPECT_EQ(layer->getDefaultBaseLineAxis(), y);
    set->setUseYAxis2(true);
    EXPECT_EQ(layer->getDefaultBaseLineAxis(), AxisImpl::of(chart->yAxis2()));
    set->setUseYAxis(nullptr);
    layer->setDataCombineMethod(kStack);
    EXPECT_EQ(layer->getDefaultBaseLineAxis(), y);
}
