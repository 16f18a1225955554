#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <string>

#include "AxisTestSupport.h"
#include "foundation/Constants.h"
#include "foundation/DateTime.h"

TEST(AutoScale, ZeroToHundred) {
    // 250 pixels at the default 50 give five steps of 20.
    TestAxis a(kBottom, 250);
    a->setAutoScale(0, 0, 0);
    a->layoutScale(0, 100);
    EXPECT_EQ(majorValues(*a), (Values{0, 20, 40, 60, 80, 100}));
    EXPECT_EQ(labelTexts(*a), (Texts{"0", "20", "40", "60", "80", "100"}));
    EXPECT_EQ(a->getTickStep(), 20);
    EXPECT_EQ(a->getScaleMode(), AxisImpl::kFixedLinear);

    // The default top extension grows 100 to 100 + 100 * 0.1 / 0.9, which rounds
    // up to 120 on six steps of 20 (300 pixels); on 250 pixels the step is 50.
    TestAxis b(kBottom, 300);
    b->layoutScale(0, 100);
    EXPECT_EQ(b->getMaxValue(), 120);
    EXPECT_EQ(majorValues(*b), (Values{0, 20, 40, 60, 80, 100, 120}));
    TestAxis c(kBottom, 250);
    c->layoutScale(0, 100);
    EXPECT_EQ(majorValues(*c), (Values{0, 50, 100, 150}));

    // Left and right axes with upright labels default to 20 pixels a step.
    TestAxis d(kLeft, 250);
    d->setAutoScale(0, 0, 0);
    d->layoutScale(0, 100);
    EXPECT_EQ(d->getTickStep(), 10);
}

TEST(AutoScale, EqualDataAndNoData) {
    TestAxis a;
    a->setAutoScale(0, 0, 0);
    a->setRounding(false, false);
    a->layoutScale(5, 5);
    EXPECT_EQ(a->getMinValue(), 2.5);
    EXPECT_EQ(a->getMaxValue(), 7.5);

    TestAxis zero;
    zero->setAutoScale(0, 0, 0);
    zero->layoutScale(0, 0);
    EXPECT_EQ(zero->getMinValue(), 0);
    EXPECT_EQ(zero->getMaxValue(), 100);

    // Without data the axis keeps 0 to 100 and makes no ticks.
    TestAxis none;
    none->layoutScale(kNoValue, kNoValue);
    EXPECT_EQ(none->getMinValue(), 0);
    EXPECT_EQ(none->getMaxValue(), 100);
    EXPECT_TRUE(none->getTickMap().empty());
    none->layoutScale(NAN, INFINITY);
    EXPECT_TRUE(none->getTickMap().empty());
}

TEST(AutoScale, ExtensionsStopAtZeroAndTheGridPassesThroughIt) {
    TestAxis a;
    a->layoutScale(-3, 7);
    EXPECT_EQ(majorValues(*a), (Values{-5, 0, 5, 10}));

    // Positive data never extends below zero, negative data never above.
    TestAxis b;
    b->setRounding(false, false);
    b->setAutoScale(0.4, 0.4, 0);
    b->layoutScale(1, 11);
    EXPECT_EQ(b->getMinValue(), 0);
    TestAxis c;
    c->setRounding(false, false);
    c->setAutoScale(0.4, 0.4, 0);
    c->layoutScale(-11, -1);
    EXPECT_EQ(c->getMaxValue(), 0);

    // Zero affinity pulls the lower limit to zero when zero is near enough.
    TestAxis d;
    d->setAutoScale(0, 0, 0.8);
    d->layoutScale(50, 100);
    EXPECT_EQ(d->getMinValue(), 0);
    TestAxis e;
    e->setAutoScale(0, 0, 0.4);
    e->layoutScale(50, 100);
    EXPECT_EQ(e->getMinValue(), 50);
}

TEST(AutoScale, TwoTicksAcrossZeroGetAThird) {
    // An axis of 80 pixels has room for one interval: the ticks are the ends.
    TestAxis a(kBottom, 80);
    a->setAutoScale(0, 0, 0);
    a->layoutScale(-10, 10);
    EXPECT_EQ(majorValues(*a), (Values{-10, 10}));
    // A fixed scale of two ticks around zero, with 50 pixels to each end.
    TestAxis b(kBottom, 100);
    b->setLinearScale(-10, 10, 20, 0);
    EXPECT_EQ(majorValues(*b), (Values{-10, 0, 10}));
    EXPECT_EQ(b->getTickStep(), 20);
    // Without the room the third is not made.
    TestAxis c(kBottom, 90);
    c->setLinearScale(-10, 10, 20, 0);
    EXPECT_EQ(majorValues(*c), (Values{-10, 10}));
}

TEST(AutoScale, MinTickIncAndPinnedEnds) {
    TestAxis a(kLeft, 200);
    a->setLinearScale(0, 2, 0, 0);
    a->setMinTickInc(1);
    a->layoutScale(0.5, 1.5);
    EXPECT_EQ(majorValues(*a), (Values{0, 1, 2}));
    EXPECT_EQ(labelTexts(*a), (Texts{"0", "1", "2"}));

    // A pinned end keeps its value as the data grows past it, and gets no extension.
    TestAxis b(kLeft, 200);
    b->setLinearScale(kNoValue, 50, 0, 0);
    b->layoutScale(3, 80);
    EXPECT_EQ(b->getMaxValue(), 50);
    // Minor ticks by density: a minor every 10 pixels.
    TestAxis c(kBottom, 250);
    c->setAutoScale(0, 0, 0);
    c->setTickDensity(50, 10);
    c->layoutScale(0, 100);
    EXPECT_EQ(majorValues(*c), (Values{0, 20, 40, 60, 80, 100}));
    // Five minors a major of 20 round to a minor step of 5.
    EXPECT_EQ(minorValues(*c).size(), 15u);
}

TEST(AutoScale, LogScales) {
    TestAxis a(kLeft, 200);
    a->setLogScale(1, 10, 0, 0);
    a->layoutScale(1, 10);
    EXPECT_EQ(majorValues(*a), (Values{1, 2, 5, 10}));
    EXPECT_EQ(labelTexts(*a), (Texts{"1", "2", "5", "10"}));
    EXPECT_EQ(a->getScaleMode(), AxisImpl::kFixedLog);
    EXPECT_NEAR(a->getCoor(10), 200, 1e-9);
    EXPECT_NEAR(a->getCoor(std::sqrt(10.0)), 100, 1e-9);

    // Several decades: whole decades, and labels with the decimals each needs.
    TestAxis b(kLeft, 100);
    b->setLogScale3("");
    b->setAutoScale(0, 0, 0);
    b->layoutScale(0.1, 1000);
    EXPECT_EQ(majorValues(*b), (Values{0.1, 1, 10, 100, 1000}));
    EXPECT_EQ(labelTexts(*b), (Texts{"0.1", "1", "10", "100", "1000"}));

    // Negative data is scaled as its mirror image.
    TestAxis c(kLeft, 100);
    c->setLogScale3("");
    c->setAutoScale(0, 0, 0);
    c->layoutScale(-1000, -0.1);
    EXPECT_EQ(majorValues(*c), (Values{-1000, -100, -10, -1, -0.1}));
    EXPECT_NEAR(c->getCoor(-1000), 0, 1e-9);

    // Less than 0.8 decades: linear steps on the log mapping.
    TestAxis d(kLeft, 200);
    d->setLogScale3("");
    d->setAutoScale(0, 0, 0);
    d->layoutScale(20, 60);
    EXPECT_EQ(majorValues(*d).front(), 20);
    EXPECT_EQ(d->getTickStep(), 5);
    EXPECT_TRUE(d->isLogScale());
}

TEST(AutoScale, NinetyDaysFallOnTheFirstOfEachMonth) {
    TestAxis a(kBottom, 500);
    a->layoutScale(at(2024, 1, 15), at(2024, 1, 15) + 90 * 86400.0);
    EXPECT_EQ(a->getScaleType(), AxisImpl::kDateScale);
    EXPECT_EQ(majorValues(*a), (Values{at(2024, 2, 1), at(2024, 3, 1), at(2024, 4, 1)}));
    EXPECT_EQ(labelTexts(*a), (Texts{"02/2024", "03/2024", "04/2024"}));
    // Date limits are the data's unless rounding is asked for.
    EXPECT_EQ(a->getMinValue(), at(2024, 1, 15));

    TestAxis b(kBottom, 500);
    b->setDateScale(kNoValue, kNoValue, 0, 0);
    b->setRounding(true, true);
    b->layoutScale(at(2024, 1, 15), at(2024, 1, 15) + 90 * 86400.0);
    EXPECT_EQ(b->getMinValue(), at(2024, 1, 1));
    EXPECT_EQ(b->getMaxValue(), at(2024, 5, 1));
}

TEST(AutoScale, DateDefaultFormats) {
    // Years.
    TestAxis a(kBottom, 500);
    a->layoutScale(at(2001, 3, 1), at(2030, 5, 1));
    for (const std::string &t : labelTexts(*a)) EXPECT_EQ(t.size(), 4u) << t;
    // Days.
    TestAxis b(kBottom, 500);
    b->layoutScale(at(2024, 2, 3), at(2024, 2, 20));
    EXPECT_EQ(labelTexts(*b).front(), "02/03/2024");
    // Hours: on two lines when the labels have room along the axis.
    TestAxis c(kBottom, 500);
    c->layoutScale(at(2024, 2, 3, 1), at(2024, 2, 3, 9));
    EXPECT_EQ(labelTexts(*c).front(), "02/03/24\n01:00:00");
    TestAxis d(kLeft, 500);
    d->layoutScale(at(2024, 2, 3, 1), at(2024, 2, 3, 9));
    EXPECT_EQ(labelTexts(*d).front(), "02/03/24 01:00:00");
}

// Random data ranges: the scale covers the data, its steps are 1, 2 or 5 times
// a power of ten, zero is on the grid when the range crosses it, and the labels
// use the fewest decimals that keep them apart.
TEST(AutoScale, RandomLinearScalesCoverTheDataWithOneTwoFiveSteps) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 3000; ++i) {
        double magnitude = std::pow(10.0, (int)(unit(rng) * 16) - 8);
        double lo = (unit(rng) * 2 - 1) * magnitude;
        double hi = lo + unit(rng) * magnitude * (unit(rng) < 0.2 ? 1e-3 : 1);
        // At least two major steps: a single one spans the whole axis by design.
        TestAxis a(unit(rng) < 0.5 ? kBottom : kLeft, 100 + (int)(unit(rng) * 600));
        a->layoutScale(lo, hi);
        SCOPED_TRACE(testing::Message() << lo << " .. " << hi);
        EXPECT_LE(a->getMinValue(), lo);
        EXPECT_GE(a->getMaxValue(), hi);

        Values majors = majorValues(*a);
        ASSERT_GE(majors.size(), 2u);
        double step = a->getTickStep();
        EXPECT_TRUE(isOneTwoFive(step)) << step;
        for (size_t k = 1; k < majors.size(); ++k)
            EXPECT_NEAR(majors[k] - majors[k - 1], step, step * 1e-6);
        if (majors.front() < 0 && majors.back() > 0) {
            EXPECT_EQ(std::count(majors.begin(), majors.end(), 0.0), 1);
        }

        Texts texts = labelTexts(*a);
        ASSERT_EQ(texts.size(), majors.size());
        EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), texts.size());
        // Every label reads back as its value, and one decimal fewer would not.
        size_t point = texts.back().find('.');
        int decimals = point == std::string::npos ? 0 : (int)(texts.back().size() - point - 1);
        bool fewerWouldDo = decimals > 0;
        for (size_t k = 0; k < majors.size(); ++k) {
            EXPECT_NEAR(std::stod(texts[k]), majors[k], step * 1e-6) << texts[k];
            double scale = std::pow(10.0, decimals - 1);
            if (std::fabs(std::round(majors[k] * scale) / scale - majors[k]) > step * 1e-6)
                fewerWouldDo = false;
        }
        EXPECT_FALSE(fewerWouldDo) << texts.back();
    }
}

TEST(AutoScale, RandomDateScalesTickOnCalendarBoundaries) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> unit(0, 1);
    const double spans[] = {
        600, 7200, 86400, 10 * 86400.0, 120 * 86400.0, 3 * 365 * 86400.0, 40 * 365 * 86400.0};
    for (int i = 0; i < 700; ++i) {
        double start = at(1990, 1, 1) + unit(rng) * 40 * 365 * 86400.0;
        double span = spans[i % 7] * (0.5 + unit(rng));
        TestAxis a(kBottom, 200 + (int)(unit(rng) * 600));
        a->layoutScale(start, start + span);
        Values majors = majorValues(*a);
        ASSERT_GE(majors.size(), 2u);
        double step = a->getTickStep();
        for (double t : majors) {
            qlx::DateTime d((long long)t);
            SCOPED_TRACE(testing::Message() << d.getYear() << "-" << d.getMonth() << "-"
                                            << d.getDay() << " step " << step);
            EXPECT_EQ(t, std::floor(t));
            if (step >= 27 * 86400) {
                EXPECT_EQ(d.getDay(), 1);
                EXPECT_EQ(std::fmod(t, 86400), 0);
            } else if (step >= 86400) {
                EXPECT_EQ(std::fmod(t, 86400), 0);
            } else if (step >= 3600) {
                EXPECT_EQ(std::fmod(t, 3600), 0);
            } else if (step >= 60) {
                EXPECT_EQ(std::fmod(t, 60), 0);
            }
            if (step >= 360 * 86400) {
                EXPECT_EQ(d.getMonth(), 1);
            }
        }
    }
}

TEST(AutoScale, RangesAtTheEdgeOfTheDoublesMakeNoScale) {
    TestAxis a(kLeft, 200);
    a->setLogScale3("");
    a->layoutScale(-1.2e308, -7e182);
    EXPECT_TRUE(a->getTickMap().empty());
    TestAxis b(kLeft, 200);
    b->layoutScale(-1.6e308, 1.6e308);
    EXPECT_TRUE(b->getTickMap().empty());
    // Far beyond the calendar, dates step as plain numbers.
    TestAxis c(kLeft, 200);
    c->setDateScale3("");
    c->layoutScale(0, 1e300);
    EXPECT_EQ(majorValues(*c).size(), 7u);
}
