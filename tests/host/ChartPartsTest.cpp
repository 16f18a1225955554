#include <gtest/gtest.h>

#include <memory>

#include "api/chart/CMultiChart.h"
#include "api/chart/ChartHandles.h"
#include "chart/axis/Axis.h"
#include "chart/base/BaseChart.h"
#include "host/abc/chart/Axis.h"
#include "host/abc/chart/MultiChart.h"
#include "host/classes/PluginEntry.h"
#include "host/glue/ChartFactories.h"
#include "host/glue/ChartParts.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Lifetime.h"
#include "tests/host/simhost/SimHost.h"

using simhost::Ref;
using simhost::SimHost;
using simhost::Value;

namespace {

// The plug-in linked into the test, registered with a simulated host, so that
// the blocks can be looked into.
class ChartPartsTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(host.loaded()) << host.loadError(); }
    void TearDown() override {
        EXPECT_EQ(std::vector<std::string>(), host.liveObjects());
        EXPECT_EQ(std::vector<std::string>(), host.misuse());
    }

    Value make(const char *cls) { return host.create(cls).value; }
    template <class Block>
    Block *block(const Value &v, ClassId root) {
        return blockOf<Block>(reinterpret_cast<REALobject>(v.ref.get()), root);
    }
    Value adopt(REALobject obj) {
        return Value::object(Ref::adopt(&host, reinterpret_cast<simhost::RefHeader *>(obj)));
    }
    REALobject raw(const Value &v) { return reinterpret_cast<REALobject>(v.ref.get()); }

    SimHost host{&pluginMain};
};

int xAxisWrapper, otherAxisWrapper;

// A chart wrapper with a standing axis, as the chart families that have axes
// hand them out: the engine axis stands on the chart and goes with it.
class AxisChart : public abc::MultiChart {
public:
    AxisChart() : abc::MultiChart(CMultiChart_create(300, 200, 0xffffff, 0, 0)) {
        ::BaseChart *engine = vistrel_api::E(getHandle());
        axis = ::Axis::create(engine, engine->getRawDrawArea(), engine->getFormatter());
        axisWrapper = addGarbage(new abc::Axis(vistrel_api::H(axis)));
    }
    ~AxisChart() override { axis->destroy(); }
    abc::Axis *xAxis() { return axisWrapper; }

private:
    ::Axis *axis;
    abc::Axis *axisWrapper;
};

struct AxisChartTarget {
    using Wrapper = AxisChart;
    static constexpr const char *kWord = "axischart";
    static Wrapper *wrapperOf(REALobject self) {
        return dynamic_cast<AxisChart *>(blockOf<ChartBlock>(self, ClassId::BaseChart)->handle);
    }
};

}  // namespace

// The glue of xAxis and its like: the same axis object each time, usable while
// the chart lives; once the chart is gone, the object the application still
// holds raises the not-initialized exception.
TEST_F(ChartPartsTest, StandingAxisObjectsStopWithTheirChart) {
    Value chart = make("VSMultiChartXPG");
    ChartBlock *c = block<ChartBlock>(chart, ClassId::BaseChart);
    delete c->handle;
    installChart(*c, new AxisChart());
    auto xAxis = standingAxis<AxisChartTarget, &AxisChart::xAxis, kXAxisSlot>;
    Value a1 = adopt(xAxis(raw(chart))), a2 = adopt(xAxis(raw(chart)));
    ASSERT_FALSE(a1.isNil());
    EXPECT_EQ(a1.ref.get(), a2.ref.get());
    EXPECT_EQ("VSAxisXPG", host.className(a1));
    // The axis holds no lock on its chart: the chart's slot holds one on it.
    EXPECT_EQ(1, host.refCount(chart));
    EXPECT_FALSE(
        host.call(a1, "setLinearScale", {simhost::D(0), simhost::D(100), simhost::D(25)}).raised);
    EXPECT_EQ((std::vector<double>{0, 25, 50, 75, 100}),
              host.doublesOf(host.call(a2, "getTicks").value));
    EXPECT_EQ(
        "50.00",
        host.call(a1, "getFormattedLabel", {simhost::D(50), simhost::S("{value|2}")}).value.s);

    chart = Value();
    for (const char *m : {"getTicks", "getMinValue"}) {
        simhost::CallResult r = host.call(a1, m);
        ASSERT_TRUE(r.raised) << m;
        EXPECT_EQ("VSNotInitialzedExceptionXPG", r.exception.className);
        EXPECT_EQ("Object not initialzed correctly.", r.exception.message);
    }
}

// Asked twice, a standing axis is the same object; when the chart goes, the
// axis object that the application still holds is emptied, not left dangling.
TEST_F(ChartPartsTest, CachedAxesOutliveTheirChartEmptied) {
    Value chart = make("VSBaseChartXPG");
    Value parent = make("Dictionary");
    ChartBlock *c = block<ChartBlock>(chart, ClassId::BaseChart);
    replaceRef(c->parent, raw(parent));
    REALobject &slot = c->axes[kXAxisSlot];
    Value a1 = adopt(
        cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, c->parent, raw(chart)));
    Value a2 = adopt(
        cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, c->parent, raw(chart)));
    EXPECT_EQ(a1.ref.get(), a2.ref.get());
    EXPECT_EQ("VSAxisXPG", host.className(a1));
    EXPECT_EQ(3, host.refCount(a1));
    AxisBlock *axis = block<AxisBlock>(a1, ClassId::Axis);
    EXPECT_EQ(nullptr, axis->owner);
    EXPECT_EQ(raw(parent), axis->parent);
    EXPECT_EQ(3, host.refCount(parent));

    // Another wrapper in the slot replaces the object and empties the old one.
    Value a3 = adopt(cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &otherAxisWrapper,
                                      c->parent, raw(chart)));
    EXPECT_NE(a1.ref.get(), a3.ref.get());
    EXPECT_EQ(nullptr, axis->axis);
    EXPECT_EQ(2, host.refCount(a1));

    chart = Value();
    AxisBlock *kept = block<AxisBlock>(a3, ClassId::Axis);
    EXPECT_EQ(nullptr, kept->axis);
    EXPECT_EQ(nullptr, kept->parent);
    EXPECT_EQ(1, host.refCount(a3));
    EXPECT_EQ(1, host.refCount(parent));
}

TEST_F(ChartPartsTest, LayersEmptyTheirAxisToo) {
    Value layer = make("VSLayerXPG");
    LayerBlock *l = block<LayerBlock>(layer, ClassId::Layer);
    Value axis = adopt(
        cachedAxisObject(l->axis, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, nullptr, raw(layer)));
    layer = Value();
    EXPECT_EQ(nullptr, block<AxisBlock>(axis, ClassId::Axis)->axis);
    EXPECT_EQ(1, host.refCount(axis));
}

// A chart added to a multi-chart comes back as the same host object; a root
// chart deletes its wrapper when it goes, whatever the order.
TEST_F(ChartPartsTest, ChildChartsComeBackAsTheSameObject) {
    Value multi = make("VSBaseChartXPG");
    Value first = make("VSBaseChartXPG"), second = make("VSBaseChartXPG");
    ChartBlock *m = block<ChartBlock>(multi, ClassId::BaseChart);
    ChartBlock *b1 = block<ChartBlock>(first, ClassId::BaseChart);
    ChartBlock *b2 = block<ChartBlock>(second, ClassId::BaseChart);
    b1->handle = abc::BaseChart::borrow(reinterpret_cast<CBaseChart *>(&xAxisWrapper));
    b2->handle = abc::BaseChart::borrow(reinterpret_cast<CBaseChart *>(&otherAxisWrapper));
    keepChildChart(*m, raw(first));
    keepChildChart(*m, raw(second));
    Value found = adopt(findChildChart(*m, b2->handle));
    EXPECT_EQ(second.ref.get(), found.ref.get());
    EXPECT_EQ(nullptr, findChildChart(*m, nullptr));
    // Another wrapper of a known chart is not the child.
    std::unique_ptr<abc::BaseChart> stranger(abc::BaseChart::borrow(b1->handle->getHandle()));
    EXPECT_EQ(nullptr, findChildChart(*m, stranger.get()));
    // Held by the test twice and by the multi-chart's array.
    first = Value();
    EXPECT_EQ(3, host.refCount(second));
    multi = Value();
    EXPECT_EQ(2, host.refCount(second));
}

// Without a resolver the entry only works out the interface version, from the
// host version it knows.
TEST(PluginEntry, NullResolverOnlySetsTheVersion) {
    simhost::HostOptions old;
    old.hostVersion = 2012.5;
    {
        SimHost host(&pluginMain, old);
        EXPECT_EQ(10, host.announcedControlVersion());
    }
    int *version = static_cast<int *>(pluginMain(nullptr));
    ASSERT_NE(nullptr, version);
    EXPECT_EQ(10, *version);
    EXPECT_EQ(2012.5, hostVersion());
}

// A chart placed in a multi-chart by other means than the host's addChart comes
// back as a new host object of its own class, holding the multi-chart.
TEST_F(ChartPartsTest, ChartsPlacedByTheEngineComeBackOfTheirClass) {
    Value multi = make("VSMultiChartXPG");
    CMultiChart *placed = CMultiChart_create(30, 20, 0xffffff, -16777216, 0);
    abc::MultiChart *m = block<ChartBlock>(multi, ClassId::BaseChart)->multiChart;
    CMultiChart_addChart(m->getMultiHandle(), 5, 5, CMultiChart_toBaseChart(placed));
    Value got = host.call(multi, "getChart", {simhost::I(0)}).value;
    EXPECT_EQ("VSMultiChartXPG", host.className(got));
    EXPECT_EQ(30, host.call(got, "getWidth").value.i);
    Value again = host.call(multi, "getChart", {simhost::I(0)}).value;
    EXPECT_EQ(host.getProperty(got, "Handle").value.i, host.getProperty(again, "Handle").value.i);
    EXPECT_EQ(3, host.refCount(multi));
    multi = Value();
    EXPECT_EQ(5, host.call(got, "getAbsOffsetY").value.i);
    got = again = Value();
    CBaseChart_destroy(CMultiChart_toBaseChart(placed));
}
