#include <gtest/gtest.h>

#include "AxisTestSupport.h"
#include "chart/axis/scale/ScaleRecord.h"
#include "foundation/Constants.h"

TEST(ScaleSettings, AutoScaleArguments) {
    ScaleRecord r;
    r.setExtensions(0.2, -0.5);
    EXPECT_EQ(r.topExtension, 0.2);
    EXPECT_EQ(r.bottomExtension, 0);
    // A pair that leaves no room for the data is refused as a whole.
    r.setExtensions(0.7, 0.4);
    EXPECT_EQ(r.topExtension, 0.2);
    EXPECT_EQ(r.bottomExtension, 0);
    // kNoValue keeps what was set, and an unset side counts as 0 in the sum.
    r.setExtensions(kNoValue, 0.5);
    EXPECT_EQ(r.topExtension, 0.2);
    EXPECT_EQ(r.bottomExtension, 0.5);
    ScaleRecord fresh;
    fresh.setExtensions(0.95, kNoValue);
    EXPECT_EQ(fresh.topExtension, 0.95);
    EXPECT_EQ(fresh.getBottomExtension(), 0.1);

    r.setZeroAffinity(3);
    EXPECT_EQ(r.zeroAffinity, 1);
    r.setZeroAffinity(-1);
    EXPECT_EQ(r.zeroAffinity, 0);
    r.setZeroAffinity(0.5);
    r.setZeroAffinity(kNoValue);
    EXPECT_EQ(r.zeroAffinity, 0.5);

    // Unset rounding counts as on for linear and log scales.
    EXPECT_TRUE(fresh.roundsMin());
    fresh.defaultRoundMin = 0;
    EXPECT_FALSE(fresh.roundsMin());
    fresh.roundMin = 1;
    EXPECT_TRUE(fresh.roundsMin());
}

TEST(ScaleSettings, PinnedEnds) {
    // A lower end pinned at or above zero keeps the scale from reaching to zero.
    TestAxis a(kLeft, 200);
    a->setAutoScale(0.1, 0.1, 1);
    a->setLinearScale(50, kNoValue, 0, 0);
    a->layoutScale(60, 100);
    EXPECT_EQ(a->getMinValue(), 50);
    // A lower end pinned below zero leaves zero affinity alone.
    TestAxis b(kLeft, 200);
    b->setAutoScale(0, 0, 1);
    b->setLinearScale(kNoValue, 100, 0, 0);
    b->layoutScale(60, 90);
    EXPECT_EQ(b->getMinValue(), 0);
    // setAutoScale makes a fixed axis automatic again; the fixed ticks go.
    TestAxis c(kLeft, 200);
    c->setLinearScale(0, 10, 3, 0);
    c->setAutoScale(0, 0, 0);
    c->layoutScale(0, 40);
    EXPECT_EQ(majorValues(*c), (Values{0, 5, 10, 15, 20, 25, 30, 35, 40}));
}

TEST(ScaleSettings, DefaultTickSpacingFollowsTheLabels) {
    AxisOrientation o;
    o.alignment = kBottom;
    EXPECT_EQ(o.defaultTickSpacing(), 50);
    o.labelAngle = 90;
    EXPECT_EQ(o.defaultTickSpacing(), 20);
    o.labelAngle = -170;
    EXPECT_EQ(o.defaultTickSpacing(), 50);
    o.alignment = kRight;
    EXPECT_EQ(o.defaultTickSpacing(), 20);
    o.labelAngle = 270;
    EXPECT_EQ(o.defaultTickSpacing(), 50);
    o.labelAngle = 104.8;
    EXPECT_EQ(o.defaultTickSpacing(), 50);
    o.labelAngle = 105;
    EXPECT_EQ(o.defaultTickSpacing(), 20);
    // A turned axis near upright (within 60 degrees of 0 or 180) reads as a side axis.
    o.alignment = kCenter;
    o.labelAngle = 0;
    o.angle = 330;
    EXPECT_EQ(o.defaultTickSpacing(), 20);
    o.angle = 90;
    EXPECT_EQ(o.defaultTickSpacing(), 50);
    o.angle = -180;
    EXPECT_EQ(o.defaultTickSpacing(), 20);

    // The density set on the axis wins.
    TestAxis a(kBottom, 300);
    a->setTickDensity(100, 0);
    EXPECT_EQ(a->getTickSpacing(), 100);
    a->setTickDensity(0, 0);
    EXPECT_EQ(a->getTickSpacing(), 50);
}
