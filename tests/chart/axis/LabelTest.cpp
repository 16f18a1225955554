#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "AxisTestSupport.h"
#include "chart/axis/label/LabelFilter.h"
#include "chart/axis/label/LabelPrecision.h"
#include "chart/axis/label/LabelTemplate.h"
#include "foundation/Constants.h"
#include "text/template/ExtraFields.h"

namespace {

const AxisLabel &tickAt(const AxisImpl &a, double key) {
    const AxisLabel *label = a.getTickMap().find(key);
    EXPECT_TRUE(label != nullptr) << key;
    static AxisLabel none;
    return label ? *label : none;
}

}  // namespace

TEST(AxisLabels, TextMarks) {
    const char *labels[] = {"~A", "-B", "\\~C", "", "~~D", "-~E", "\\-F"};
    TestAxis a;
    a->setLabels(StringArray(labels, 7));
    EXPECT_EQ(a->getTicks().len, 6);
    EXPECT_EQ(tickAt(*a, 0).text, "A");
    EXPECT_EQ(tickAt(*a, 0).flags, AxisLabel::kFinalText | AxisLabel::kNoTickMark);
    EXPECT_EQ(tickAt(*a, 1).text, "B");
    EXPECT_EQ(tickAt(*a, 1).flags, AxisLabel::kFinalText | AxisLabel::kMinorTick);
    EXPECT_EQ(tickAt(*a, 2).text, "~C");
    EXPECT_EQ(tickAt(*a, 2).flags, AxisLabel::kFinalText);
    EXPECT_EQ(a->getTickMap().find(3), nullptr);
    EXPECT_EQ(tickAt(*a, 4).flags, 22);
    EXPECT_EQ(tickAt(*a, 5).flags, 21);
    EXPECT_EQ(tickAt(*a, 6).text, "-F");
    EXPECT_STREQ(a->getLabel(2), "~C");
    EXPECT_EQ(a->getLabel(3), nullptr);

    // addLabel keeps an empty text as a tick without mark or label.
    a->addLabel(3, "");
    EXPECT_EQ(tickAt(*a, 3).flags, 18);
    // Labels at equal steps between two limits; the label pass leaves them alone.
    const char *q[] = {"Q1", "Q2", "Q3"};
    TestAxis b;
    b->setLinearScale2(10, 20, StringArray(q, 3));
    b->setLabelFormat("{value|2}");
    b->layoutScale();
    EXPECT_EQ(labelTexts(*b), (Texts{"Q1", "Q2", "Q3"}));
    EXPECT_EQ(majorValues(*b), (Values{10, 15, 20}));
}

TEST(AxisLabels, Decimals) {
    using LabelPrecision::decimalsFor;
    EXPECT_EQ(decimalsFor({0, 0.5, 1, 1.5}), 1);
    EXPECT_EQ(decimalsFor({0, 20, 40}), 0);
    EXPECT_EQ(decimalsFor({0.25, 0.5}), 2);
    EXPECT_EQ(decimalsFor({1.0001}), 4);
    EXPECT_EQ(decimalsFor({0, 0.002, 0.004}), 3);
    EXPECT_EQ(decimalsFor({1, 2, 5, 10, 20, 50, 100}), -1);
    EXPECT_EQ(decimalsFor({-1e308, 1e308}), 0);
    EXPECT_EQ(decimalsFor({3, 3}), -1);

    // A tick at 1e-12 on a range of 0 to 100 is written 0.
    TestAxis b(kBottom, 100);
    b->setLinearScale(1e-12, 100, 20, 0);
    b->layoutScale();
    EXPECT_EQ(labelTexts(*b), (Texts{"0", "20", "40", "60", "80", "100"}));

    // The decimals are those of the whole axis: 0.0, 0.5, 1.0.
    TestAxis c(kBottom, 100);
    c->setLinearScale(0, 1, 0.5, 0);
    c->layoutScale();
    EXPECT_EQ(labelTexts(*c), (Texts{"0.0", "0.5", "1.0"}));
    // The chart's number format reaches the labels.
    TestAxis d(kBottom, 100);
    d.chartFormatter.setNumberFormat(',', '.', '-');
    d->setLinearScale(0, 20000, 10000, 0);
    d->layoutScale();
    EXPECT_EQ(labelTexts(*d), (Texts{"0", "10,000", "20,000"}));
}

TEST(AxisLabels, FormatsAndTemplates) {
    TestAxis a(kBottom, 100);
    a->setLinearScale(0, 1, 0.5, 0);
    a->setLabelFormat("{value|2}%");
    a->layoutScale();
    EXPECT_EQ(labelTexts(*a), (Texts{"0.00%", "0.50%", "1.00%"}));

    // An expression takes the axis's decimals through "@".
    TestAxis b(kBottom, 100);
    b->setLinearScale(100, 110, 5, 0);
    b->setLabelFormat("{={value}-100|@}%");
    b->layoutScale();
    EXPECT_EQ(labelTexts(*b), (Texts{"0%", "5%", "10%"}));

    // Marks at the start of a format act on every tick it labels.
    TestAxis c(kBottom, 100);
    c->setLinearScale(0, 2, 1, 0);
    c->setLabelFormat("-");
    c->layoutScale();
    EXPECT_EQ(tickAt(*c, 1).flags & (AxisLabel::kMinorTick | AxisLabel::kNoTickMark),
              AxisLabel::kMinorTick);
    EXPECT_EQ(tickAt(*c, 1).text, "");

    // "{label}" is the tick's text so far, "{tickInc}" the step; extra fields by row.
    ExtraFields fields;
    const char *names[] = {"zero", "one", "two"};
    fields.addExtraField(StringArray(names, 3));
    TestAxis d(kBottom, 100);
    d->setFieldSource(&fields);
    d->setLinearScale(0, 2, 1, 0);
    d->setLabelFormat("{value}:{field0}/{tickInc}");
    d->layoutScale();
    EXPECT_EQ(labelTexts(*d), (Texts{"0:zero/1", "1:one/1", "2:two/1"}));

    // A setting of the format list only takes the last one, until multi-format.
    TestAxis e(kBottom, 100);
    e->setLinearScale(0, 2, 1, 0);
    e->setLabelFormat("a{value}");
    e->setLabelFormat("b{value}");
    e->layoutScale();
    EXPECT_EQ(labelTexts(*e).front(), "b0");

    // getFormattedLabel: dates by default, bare formats and templates otherwise.
    TestAxis f;
    EXPECT_STREQ(f->getFormattedLabel(at(2024, 3, 5), ""), "Mar 05, 2024");
    EXPECT_STREQ(f->getFormattedLabel(at(2024, 3, 5, 7, 8, 9), nullptr), "Mar 05, 2024 07:08:09");
    EXPECT_STREQ(f->getFormattedLabel(1234.5, "1,."), "1,234.5");
    EXPECT_STREQ(f->getFormattedLabel(0.25, "<{value|1}>"), "<0.3>");
    EXPECT_STREQ(f->getFormattedLabel(3, ""), "3");
}

TEST(AxisLabels, TextAxisOfValuesAndLabelStep) {
    double times[] = {at(2024, 1, 30), at(2024, 1, 31), at(2024, 2, 1),    at(2024, 2, 2),
                      kMinorTickOnly,  kNoValue,        at(2024, 2, 5, 12)};
    TestAxis a;
    a->setLabels2(DoubleArray(times, 7), "{value|mmm dd}");
    a->layoutScale();
    EXPECT_EQ(labelTexts(*a), (Texts{"Jan 30", "Jan 31", "Feb 01", "Feb 02", "Feb 05"}));
    EXPECT_EQ(tickAt(*a, 4).flags & AxisLabel::kMinorTick, AxisLabel::kMinorTick);
    EXPECT_EQ(a->getTickMap().find(5), nullptr);

    // Every third label stays; of the others every second keeps a minor mark.
    const char *names[] = {"a", "b", "c", "d", "e", "f", "g"};
    TestAxis b;
    b->setLabels(StringArray(names, 7));
    b->setLabelStep(3, 2, 1, -2147483647);
    EXPECT_EQ(labelTexts(*b), (Texts{"b", "e"}));
    EXPECT_EQ(tickAt(*b, 0).flags & 7, 6);
    EXPECT_EQ(tickAt(*b, 3).flags & 7, 5);
    EXPECT_EQ(tickAt(*b, 2).flags & 7, 6);
}

TEST(AxisLabels, MultiFormatFiltersAndConditions) {
    EXPECT_EQ((unsigned)Chart::encodeFilter(kStartOfMonthFilter, 2, 0.5),
              (4u << 28) | (2048u << 16) | 2u);
    EXPECT_EQ((unsigned)Chart::encodeFilter(kSelectItemFilter, 3, 7),
              (9u << 28) | (4095u << 16) | 3u);
    LabelFilter decoded(Chart::encodeFilter(kRegularSpacingFilter, 5, 0));
    EXPECT_EQ(decoded.getTag(), kRegularSpacingFilter);
    EXPECT_EQ(decoded.getLabelStep(), 5);

    // Days from Jan 29 to Feb 3: the month's first day by the first format, the
    // other days by the second; the first label promoted to the month format.
    TestAxis a(kBottom, 600);
    a->setDateScale(at(2024, 1, 29), at(2024, 2, 3), 86400, 0);
    a->setMultiFormat(Chart::encodeFilter(kStartOfMonthFilter, 1, 0.05), "{value|mmm}",
                      Chart::encodeFilter(kStartOfDayFilter, 1, 0.05), "{value|d}", 1, true);
    a->layoutScale();
    EXPECT_EQ(labelTexts(*a), (Texts{"Jan", "30", "31", "Feb", "2", "3"}));
    EXPECT_EQ(tickAt(*a, at(2024, 2, 1)).formatIndex, 1);
    EXPECT_EQ(tickAt(*a, at(2024, 2, 2)).formatIndex, 0);

    // Without promotion the first day keeps its own format; a tick no filter picks
    // loses mark and label, one a filter keeps as minor keeps a minor mark.
    TestAxis b(kBottom, 600);
    b->setDateScale(at(2024, 1, 29), at(2024, 2, 3), 86400, 0);
    b->setMultiFormat2(Chart::encodeFilter(kStartOfMonthFilter, 1, 0), "{value|mmm}", 1, false);
    b->setMultiFormat2(Chart::encodeFilter(kSelectItemFilter, 1, 0), "{value|d}", 1, false);
    b->layoutScale();
    EXPECT_EQ(labelTexts(*b), (Texts{"30", "Feb"}));
    EXPECT_EQ(tickAt(*b, at(2024, 1, 31)).flags & 7, 6);
    TestAxis c(kBottom, 600);
    c->setDateScale(at(2024, 1, 29), at(2024, 2, 3), 86400, 0);
    c->setMultiFormat2(Chart::encodeFilter(kStartOfDayFilter, 2, 0), "{value|d}", 1, false);
    c->layoutScale();
    EXPECT_EQ(labelTexts(*c), (Texts{"29", "31", "2"}));
    EXPECT_EQ(tickAt(*c, at(2024, 1, 30)).flags & 7, AxisLabel::kMinorTick);

    // Conditions gate the entries after them.
    TestAxis d(kBottom, 600);
    d->setLinearScale(0, 10, 1, 0);
    d->setFormatCondition("  align\t", 5);
    d->setMultiFormat2(Chart::encodeFilter(kAllPassFilter, 1, 0), "[{value}]", 1, false);
    d->setFormatCondition("else", 0);
    d->setMultiFormat2(Chart::encodeFilter(kAllPassFilter, 1, 0), "{value}", 1, false);
    d->setFormatCondition("", 0);
    d->setFormatCondition("true", kNoValue);
    d->layoutScale();
    EXPECT_EQ(labelTexts(*d),
              (Texts{"[0]", "1", "2", "3", "4", "[5]", "6", "7", "8", "9", "[10]"}));
    // "align" on a month is the 1st at midnight.
    TestAxis e(kBottom, 600);
    e->setDateScale(at(2024, 1, 30), at(2024, 2, 2), 43200, 0);
    e->setFormatCondition("align", 2592000);
    e->setMultiFormat2(Chart::encodeFilter(kAllPassFilter, 1, 0), "{value|mmm}", 1, false);
    e->layoutScale();
    EXPECT_EQ(labelTexts(*e), (Texts{"Feb"}));
}

// The direct path of plain "{value}" labels gives what the template parser gives.
TEST(AxisLabels, PlainValuesMatchTheTemplatePath) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> unit(0, 1);
    const char *formats[] = {"@", "", "2,.", "g", "mm/dd/yyyy", "mmm dd\nhh:nn", "yyyy", "p3"};
    Formatter chart;
    chart.setNumberFormat('\'', ',', '-');
    Formatter formatter;
    formatter.setDefault(&chart);
    LabelTemplate filler(&formatter, nullptr);
    for (int i = 0; i < 3000; ++i) {
        double v = i % 3 == 0 ? at(1900, 1, 1) + unit(rng) * 1e10
                              : (unit(rng) - 0.5) * std::pow(10.0, unit(rng) * 20 - 10);
        if (i % 97 == 0) v = kNoValue;
        formatter.setContextPrecision(i % 7 - 1);
        AxisLabel label(v);
        const char *format = formats[i % 8];
        EXPECT_EQ(filler.fill("{value}", label, format, 1, i),
                  filler.fillByParser("{value}", label, format, 1, i))
            << v << " " << format;
    }
}
