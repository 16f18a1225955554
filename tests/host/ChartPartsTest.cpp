#include <gtest/gtest.h>

#include "host/abc/BaseChart.h"
#include "host/classes/PluginEntry.h"
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

}  // namespace

// Asked twice, a standing axis is the same object; when the chart goes, the
// axis object that the application still holds is emptied, not left dangling.
TEST_F(ChartPartsTest, CachedAxesOutliveTheirChartEmptied) {
    Value chart = make("VSBaseChartXPG");
    Value parent = make("Dictionary");
    ChartBlock *c = block<ChartBlock>(chart, ClassId::BaseChart);
    replaceRef(c->parent, raw(parent));
    REALobject &slot = c->axes[kXAxisSlot];
    Value a1 = adopt(cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, c->parent));
    Value a2 = adopt(cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, c->parent));
    EXPECT_EQ(a1.ref.get(), a2.ref.get());
    EXPECT_EQ("VSAxisXPG", host.className(a1));
    EXPECT_EQ(3, host.refCount(a1));
    AxisBlock *axis = block<AxisBlock>(a1, ClassId::Axis);
    EXPECT_EQ(nullptr, axis->owner);
    EXPECT_EQ(raw(parent), axis->parent);
    EXPECT_EQ(3, host.refCount(parent));

    // Another wrapper in the slot replaces the object and empties the old one.
    Value a3 =
        adopt(cachedAxisObject(slot, ClassId::Axis, "VSAxisXPG", &otherAxisWrapper, c->parent));
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
    Value axis =
        adopt(cachedAxisObject(l->axis, ClassId::Axis, "VSAxisXPG", &xAxisWrapper, nullptr));
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
    b1->handle = new abc::BaseChart();
    b2->handle = new abc::BaseChart();
    keepChildChart(*m, raw(first));
    keepChildChart(*m, raw(second));
    Value found = adopt(findChildChart(*m, b2->handle));
    EXPECT_EQ(second.ref.get(), found.ref.get());
    EXPECT_EQ(nullptr, findChildChart(*m, nullptr));
    abc::BaseChart stranger;
    EXPECT_EQ(nullptr, findChildChart(*m, &stranger));
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
