#include <string>
#include <vector>

#include "draw/pixel/ColorWords.h"
#include "finance/ArrayMath.h"
#include "foundation/Constants.h"
#include "tests/host/HostTestSupport.h"

using simhost::SimClass;

namespace {

struct ClassCounts {
    const char *name;
    const char *super;
    size_t dataSize;
    int registered;  // instance methods registered now
    int target;      // instance methods of the complete class
};

// Every class in registration order.  Still to come: DrawObj's paint; of the
// axis, the overloads over host dates; the XY chart's makers of the other
// layer kinds and those over host dates, and its scale colours; the forms over
// host pictures and dates of layers and data sets; and the classes of later
// Parts.
const ClassCounts kExpected[] = {
    {"VSTreeMapNodeXPG", "Object", 32, 0, 18},
    {"VSTreeMapChartXPG", "VSBaseChartXPG", 0, 0, 5},
    {"VSViewPortControlBaseXPG", "Object", 48, 0, 10},
    {"VSThreeDChartXPG", "VSBaseChartXPG", 0, 0, 20},
    {"VSMLTableXPG", "VSDrawObjXPG", 0, 0, 18},
    {"VSPlotAreaXPG", "Object", 32, 19, 19},
    {"VSScatterLayerXPG", "VSLineLayerXPG", 0, 0, 0},
    {"VSLinearMeterXPG", "VSBaseMeterXPG", 0, 0, 9},
    {"VSBaseChartXPG", "Object", 224, 91, 91},
    {"VSPolarSplineLineLayerXPG", "VSPolarLineLayerXPG", 0, 0, 1},
    {"VSMultiChartXPG", "VSBaseChartXPG", 0, 6, 6},
    {"VSBoxWhiskerLayerXPG", "VSBaseBoxLayerXPG", 0, 0, 7},
    {"VSPolarChartXPG", "VSBaseChartXPG", 0, 0, 38},
    {"VSDataSetXPG", "Object", 48, 25, 26},
    {"VSSectorXPG", "Object", 32, 16, 16},
    {"VSLegendBoxXPG", "VSTextBoxXPG", 0, 15, 15},
    {"VSPolarLineLayerXPG", "VSPolarLayerXPG", 0, 0, 3},
    {"VSViewPortManagerXPG", "Object", 32, 0, 45},
    {"VSBaseMeterXPG", "VSBaseChartXPG", 0, 0, 21},
    {"VSStepLineLayerXPG", "VSLineLayerXPG", 0, 0, 1},
    {"VSAxisXPG", "Object", 48, 59, 66},
    {"VSDrawAreaXPG", "Object", 48, 136, 136},
    {"VSThreeDScatterGroupXPG", "Object", 48, 0, 16},
    {"VSRanTableXPG", "Object", 32, 0, 10},
    {"VSRanSeriesXPG", "Object", 32, 0, 10},
    {"VSPolarLayerXPG", "Object", 80, 0, 25},
    {"VSDrawObjXPG", "Object", 32, 2, 3},
    {"VSMarkXPG", "VSTextBoxXPG", 0, 6, 6},
    {"VSPolarAreaLayerXPG", "VSPolarLayerXPG", 0, 0, 0},
    {"VSTextBoxXPG", "VSBoxXPG", 0, 13, 13},
    {"VSTTFTextXPG", "Object", 32, 8, 8},
    {"VSLayerXPG", "Object", 160, 56, 58},
    {"VSMeterPointerXPG", "VSDrawObjXPG", 0, 0, 17},
    {"VSXYChartXPG", "VSBaseChartXPG", 0, 48, 118},
    {"VSBarLayerXPG", "VSLayerXPG", 0, 10, 11},
    {"VSAngularAxisXPG", "Object", 32, 0, 14},
    {"VSLineXPG", "VSDrawObjXPG", 0, 4, 4},
    {"VSCandleStickLayerXPG", "VSBaseBoxLayerXPG", 0, 0, 4},
    {"VSLineObjXPG", "Object", 32, 1, 1},
    {"VSSplineLayerXPG", "VSLineLayerXPG", 0, 0, 2},
    {"VSPolarVectorLayerXPG", "VSPolarLayerXPG", 0, 0, 8},
    {"VSImageMapHandlerXPG", "Object", 32, 0, 5},
    {"VSFinanceSimulatorXPG", "Object", 32, 0, 8},
    {"VSAngularMeterXPG", "VSBaseMeterXPG", 0, 0, 40},
    {"VSAreaLayerXPG", "VSLayerXPG", 0, 3, 3},
    {"VSInterLineLayerXPG", "VSLayerXPG", 0, 0, 2},
    {"VSPieChartXPG", "VSBaseChartXPG", 0, 24, 24},
    {"VSPolarSplineAreaLayerXPG", "VSPolarAreaLayerXPG", 0, 0, 1},
    {"VSBoxXPG", "VSDrawObjXPG", 0, 11, 11},
    {"VSTrendLayerXPG", "VSLayerXPG", 0, 0, 12},
    {"VSLineLayerXPG", "VSLayerXPG", 0, 7, 7},
    {"VSArrayXPG", "Object", 32, 71, 71},
    {"VSVectorLayerXPG", "VSLayerXPG", 0, 0, 8},
    {"VSBaseBoxLayerXPG", "VSLayerXPG", 0, 0, 5},
    {"VSHLOCLayerXPG", "VSBaseBoxLayerXPG", 0, 0, 2},
    {"VSRadialAxisXPG", "VSAxisXPG", 0, 0, 0},
    {"VSThreeDScatterChartXPG", "VSThreeDChartXPG", 0, 0, 4},
    {"VSNotInitialzedExceptionXPG", "RuntimeException", 0, 0, 0},
    {"VSPyramidChartXPG", "VSBaseChartXPG", 0, 0, 26},
    {"VSSurfaceChartXPG", "VSThreeDChartXPG", 0, 0, 27},
    {"VSPyramidLayerXPG", "Object", 32, 0, 17},
    {"VSContourLayerXPG", "VSLayerXPG", 0, 0, 17},
    {"VSColorAxisXPG", "VSAxisXPG", 0, 0, 19},
    {"VSFinanceChartXPG", "VSMultiChartXPG", 0, 0, 141},
    {"VSMultiPagePDFXPG", "Object", 48, 0, 6},
    {"VSDiscreteHeatMapLayerXPG", "VSLayerXPG", 0, 0, 4},
    {"VSDataAcceleratorXPG", "Object", 32, 0, 7},
};

int constantValue(const SimClass *cls, const std::string &name) {
    for (const simhost::ConstantDecl &k : cls->constants)
        if (k.name == name) return (int)k.value.i;
    ADD_FAILURE() << "no constant " << name;
    return 0;
}

}  // namespace

TEST_F(HostTest, EveryClassRegistersInOrderAndEveryDeclarationParses) {
    EXPECT_EQ(13, host->announcedControlVersion());
    ASSERT_NE(nullptr, host->pluginMainResult());
    EXPECT_EQ(13, *static_cast<int *>(host->pluginMainResult()));
    EXPECT_EQ(std::vector<std::string>(), host->declarationErrors());

    const auto &classes = host->pluginClasses();
    ASSERT_EQ(sizeof kExpected / sizeof *kExpected, classes.size());
    int registered = 0, target = 0;
    for (size_t i = 0; i < classes.size(); ++i) {
        const ClassCounts &want = kExpected[i];
        const SimClass *c = classes[i];
        SCOPED_TRACE(want.name);
        EXPECT_EQ(want.name, c->name);
        ASSERT_NE(nullptr, c->super);
        EXPECT_EQ(want.super, c->super->name);
        EXPECT_EQ(want.dataSize, c->definition->dataSize);
        EXPECT_EQ(13u, c->definition->version);
        EXPECT_EQ((size_t)want.registered, c->definition->methodCount);
        EXPECT_EQ(c->definition->methodCount, c->methods.size());
        registered += want.registered;
        target += want.target;
    }
    EXPECT_EQ(1366, target);
    EXPECT_EQ(391 + 25 + 19 + 25 + 16 + 6 + 56 + 48 + 10 + 1 + 24 + 7 + 3, registered);

    const SimClass *chart = host->findClass("VSBaseChartXPG");
    EXPECT_EQ(186u, chart->constants.size());
    EXPECT_EQ(66u, chart->sharedMethods.size());
    EXPECT_EQ(2u, chart->sharedProperties.size());
    EXPECT_EQ(2u, host->findClass("VSDrawAreaXPG")->properties.size());
    EXPECT_EQ(2u, chart->properties.size());
    EXPECT_EQ(4u, host->findClass("VSXYChartXPG")->properties.size());
}

TEST_F(HostTest, ConstantsAgreeWithTheEngine) {
    const SimClass *chart = host->findClass("VSBaseChartXPG");
    EXPECT_EQ(kTopLeft, constantValue(chart, "kTopLeft"));
    EXPECT_EQ(kBottomRight2, constantValue(chart, "kBottomRight2"));
    EXPECT_EQ(kTop, constantValue(chart, "kTop"));
    EXPECT_EQ(kSVGZ, constantValue(chart, "kSVGZ"));
    EXPECT_EQ(kPDF, constantValue(chart, "kPDF"));
    EXPECT_EQ(kTransparent, constantValue(chart, "kTransparent"));
    EXPECT_EQ(kPalette, constantValue(chart, "kPalette"));
    EXPECT_EQ(kTextColor, constantValue(chart, "kTextColor"));
    EXPECT_EQ(kSameAsMainColor, constantValue(chart, "kSameAsMainColor"));
    EXPECT_EQ(kDataColor, constantValue(chart, "kDataColor"));
    EXPECT_EQ(kDotDashLine, constantValue(chart, "kDotDashLine"));
    EXPECT_EQ(kAltDashLine, constantValue(chart, "kAltDashLine"));
    EXPECT_EQ(kPercentage, constantValue(chart, "kPercentage"));
    EXPECT_EQ(kChartFrontZ, constantValue(chart, "kChartFrontZ"));
    EXPECT_EQ(kGridLinesZ, constantValue(chart, "kGridLinesZ"));
    EXPECT_EQ(kAggregateCount, constantValue(chart, "kAggregateCount"));
    EXPECT_EQ(kAggregatePercentile, constantValue(chart, "kAggregatePercentile"));
    EXPECT_EQ(kNoGlare, constantValue(chart, "kNoGlare"));
    EXPECT_EQ(-1342177279, constantValue(chart, "kNewShape"));
    EXPECT_EQ(-2, constantValue(chart, "kAutoGrid"));
}

// Older hosts get the interface version they know and the target flags they
// read; a host without REALGetRBVersion is taken for the oldest.
TEST_F(HostTest, OldHostsGetTheirVersionAndFlags) {
    const REALclassDefinition *now = host->findClass("VSDrawAreaXPG")->definition;
    EXPECT_EQ(0x308u, now->mFlags);
    EXPECT_EQ(0x308u, now->methods[0].mFlags);

    simhost::HostOptions old;
    old.hostVersion = 2012.5;
    start(old);
    EXPECT_EQ(10, host->announcedControlVersion());
    const REALclassDefinition *then = host->findClass("VSDrawAreaXPG")->definition;
    EXPECT_EQ((uint32_t)REALconsoleSafe, then->mFlags);
    EXPECT_EQ((uint32_t)REALconsoleSafe, then->methods[0].mFlags);
    EXPECT_EQ(10u, then->version);

    simhost::HostOptions nameless;
    nameless.missingFunctions = {"REALGetRBVersion"};
    start(nameless);
    EXPECT_EQ(9, host->announcedControlVersion());

    simhost::HostOptions v2013;
    v2013.hostVersion = 2013.03;
    start(v2013);
    EXPECT_EQ(12, host->announcedControlVersion());
}
