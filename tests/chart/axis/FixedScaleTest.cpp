#include <gtest/gtest.h>

#include <cmath>

#include "AxisTestSupport.h"
#include "foundation/Constants.h"

TEST(FixedScale, LinearLimitsAndDirection) {
    TestAxis a(kBottom, 200);
    a->setLinearScale(0, 100, 25, 5);
    EXPECT_EQ(a->getScaleMode(), AxisImpl::kFixedLinear);
    EXPECT_EQ(majorValues(*a), (Values{0, 25, 50, 75, 100}));
    EXPECT_EQ(minorValues(*a).size(), 16u);
    EXPECT_EQ(a->getCoor(50), 100);

    // Lower above upper with a positive step: nothing from the generator.
    TestAxis b;
    b->setLinearScale(10, 0, 2, 0);
    EXPECT_TRUE(b->getTickMap().empty());
    // Without a step the limits swap and the axis runs the other way.
    TestAxis c(kBottom, 100);
    c->setLinearScale(10, 0, 0, 0);
    EXPECT_TRUE(c->isReversed());
    c->layoutScale(2, 8);
    EXPECT_EQ(c->getMinValue(), 0);
    EXPECT_EQ(c->getMaxValue(), 10);
    EXPECT_EQ(c->getCoor(0), 100);
    EXPECT_EQ(c->getCoor(10), 0);

    // A reversed fixed scale keeps its ticks and mirrors the pixels.
    TestAxis d(kLeft, 100);
    d->setLinearScale(0, 50, 10, 0);
    d->setReverse(true);
    EXPECT_EQ(majorValues(*d), (Values{0, 10, 20, 30, 40, 50}));
    EXPECT_EQ(d->getCoor(10), 80);

    // Equal limits move apart; the explicit rounding-off start snaps to the grid.
    TestAxis e;
    e->setLinearScale(3, 3, 1, 0);
    EXPECT_NEAR(e->getMaxValue() - e->getMinValue(), 2e-5, 1e-12);
    TestAxis f(kBottom, 100);
    f->setRounding(false, true);
    f->setLinearScale(3, 30, 10, 0);
    EXPECT_EQ(majorValues(*f), (Values{10, 20, 30}));
    TestAxis g(kBottom, 100);
    g->setLinearScale(3, 30, 10, 0);
    EXPECT_EQ(majorValues(*g), (Values{3, 13, 23}));

    // A second fixed scale replaces the ticks of the first, not the caller's.
    g->addLabel(7, "seven");
    g->setLinearScale(0, 30, 15, 0);
    EXPECT_EQ(majorValues(*g), (Values{0, 7, 15, 30}));
    // kNoValue as step: limits only, ticks by addLabel.
    g->setLinearScale(0, 30, kNoValue, 0);
    EXPECT_EQ(majorValues(*g), (Values{7}));
}

TEST(FixedScale, MarginsAndIndent) {
    TestAxis a(kBottom, 120);
    a->setLinearScale(0, 10, 1, 0);
    a->setMargin(10, 10);
    EXPECT_EQ(a->getCoor(0), 10);
    EXPECT_EQ(a->getCoor(10), 110);
    // Each of the three categories of a text axis owns a third, its label in the middle.
    const char *names[] = {"a", "b", "c"};
    TestAxis b(kBottom, 300);
    b->setLabels(StringArray(names, 3));
    b->setIndent(true);
    EXPECT_EQ(b->getCoor(0), 50);
    EXPECT_EQ(b->getCoor(1), 150);
    EXPECT_EQ(b->getCoor(2), 250);
}

TEST(FixedScale, LogAndDate) {
    // Limits on both sides of zero are ignored.
    TestAxis a;
    a->setLogScale(-1, 10, 10, 0);
    EXPECT_EQ(a->getScaleMode(), AxisImpl::kNothingSet);
    EXPECT_FALSE(a->isLogScale());

    TestAxis b(kLeft, 300);
    b->setLogScale(1, 1000, 10, 0);
    EXPECT_EQ(majorValues(*b), (Values{1, 10, 100, 1000}));
    EXPECT_NEAR(b->getCoor(100), 200, 1e-9);
    b->setLogScale(1, 100, kLogTick, kLinearTick);
    EXPECT_EQ(majorValues(*b), (Values{1, 2, 5, 10, 20, 50, 100}));
    EXPECT_EQ(minorValues(*b), (Values{3, 4, 6, 7, 8, 9, 30, 40, 60, 70, 80, 90}));
    // Negative limits mirror.
    b->setLogScale(-100, -1, 10, 0);
    EXPECT_EQ(majorValues(*b), (Values{-100, -10, -1}));
    // A value on the other side of zero sits at the start of the scale.
    b->setLogScale(1, 100, 10, 0);
    EXPECT_EQ(b->getCoor(-5), 0);

    TestAxis c(kBottom, 300);
    c->setDateScale(at(2024, 1, 1), at(2024, 4, 1), 2592000, 86400 * 7);
    EXPECT_EQ(c->getScaleMode(), AxisImpl::kFixedDate);
    EXPECT_EQ(majorValues(*c),
              (Values{at(2024, 1, 1), at(2024, 2, 1), at(2024, 3, 1), at(2024, 4, 1)}));
    EXPECT_EQ(minorValues(*c).front(), at(2024, 1, 8));
    c->layoutScale();
    EXPECT_EQ(labelTexts(*c), (Texts{"01/2024", "02/2024", "03/2024", "04/2024"}));
}
