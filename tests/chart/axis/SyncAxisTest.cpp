#include <gtest/gtest.h>

#include "AxisTestSupport.h"
#include "foundation/Constants.h"

namespace {

// Celsius from 0 to 100 on a left axis of 200 pixels: ticks every 10 degrees.
void layOutCelsius(TestAxis &celsius) {
    celsius->setAutoScale(0, 0, 0);
    celsius->layoutScale(0, 100);
}

}  // namespace

TEST(SyncAxis, TicksCarriedOverBySlopeAndIntercept) {
    TestAxis celsius(kLeft, 200), fahrenheit(kRight, 200);
    layOutCelsius(celsius);
    fahrenheit->syncAxis(celsius.axis.get(), 1.8, 32);
    EXPECT_EQ(fahrenheit->getScaleMode(), AxisImpl::kSynchronised);
    fahrenheit->layoutScale(kNoValue, kNoValue);
    EXPECT_EQ(majorValues(*fahrenheit),
              (Values{32, 50, 68, 86, 104, 122, 140, 158, 176, 194, 212}));
    EXPECT_EQ(labelTexts(*fahrenheit).front(), "32");
    EXPECT_EQ(fahrenheit->getMinValue(), 32);
    EXPECT_EQ(fahrenheit->getMaxValue(), 212);
    EXPECT_DOUBLE_EQ(fahrenheit->getCoor(212), celsius->getCoor(100));
    EXPECT_DOUBLE_EQ(fahrenheit->getCoor(122), celsius->getCoor(50));
}

TEST(SyncAxis, ScaleOnlyMakesItsOwnTicksInTheSharedRange) {
    TestAxis celsius(kLeft, 200), fahrenheit(kRight, 200);
    layOutCelsius(celsius);
    fahrenheit->syncScale(celsius.axis.get(), 1.8, 32);
    fahrenheit->layoutScale(kNoValue, kNoValue);
    EXPECT_EQ(majorValues(*fahrenheit), (Values{40, 60, 80, 100, 120, 140, 160, 180, 200}));
    EXPECT_EQ(fahrenheit->getMinValue(), 32);
    EXPECT_DOUBLE_EQ(fahrenheit->getCoor(212), 200);

    // Rounding of the minimum turned off asks for the same.
    TestAxis other(kRight, 200);
    other->setRounding(false, false);
    other->syncAxis(celsius.axis.get(), 1.8, 32);
    other->layoutScale();
    EXPECT_EQ(majorValues(*other).front(), 40);
}

TEST(SyncAxis, CopiesAndLoops) {
    TestAxis x(kBottom, 400), copy(kTop, 400);
    x->layoutScale(at(2024, 1, 15), at(2024, 6, 15));
    copy->copyAxis(x.axis.get());
    copy->addLabel(at(2024, 3, 15), "mid");
    copy->layoutScale();
    EXPECT_EQ(copy->getScaleMode(), AxisImpl::kCopied);
    Texts copied = labelTexts(*copy);
    Texts original = labelTexts(*x);
    original.insert(original.begin() + 2, "mid");
    EXPECT_EQ(copied, original);
    EXPECT_EQ(copy->getCoor(at(2024, 4, 1)), x->getCoor(at(2024, 4, 1)));

    // Two axes that follow each other neither hang nor crash.
    TestAxis a, b;
    a->syncAxis(b.axis.get(), 2, 0);
    b->syncAxis(a.axis.get(), 0.5, 0);
    a->layoutScale(1, 5);
    b->layoutScale(1, 5);
    EXPECT_EQ(a->getCoor(3), 0);

    // An axis given itself, or nothing, becomes automatic again.
    a->syncAxis(a.axis.get(), 1, 0);
    EXPECT_EQ(a->getScaleMode(), AxisImpl::kAutomatic);
    b->syncScale(nullptr, 1, 0);
    EXPECT_EQ(b->getScaleMode(), AxisImpl::kAutomatic);
}
