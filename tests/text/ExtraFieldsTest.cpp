#include "text/template/ExtraFields.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

std::string fill(ExtraFields &fields, const char *tmpl, int dataSet, int dataItem) {
    Formatter formatter;
    VSParser parser(tmpl, 0);
    while (const char *name = parser.getNextAttr())
        fields.formatAttr(&parser, &formatter, dataSet, dataItem, name);
    return parser.getResult(&formatter);
}

}  // namespace

TEST(ExtraFields, ColumnsAndRows) {
    ExtraFields fields;
    const char *names[] = {"north", nullptr, "south"};
    double numbers[] = {1.5, Chart::chartTime(2021, 6, 1, 0, 0, 0),
                        Chart::chartTime(2021, 6, 1, 8, 30, 0)};
    fields.addExtraField(StringArray(names, 3));
    fields.addExtraField(DoubleArray(numbers, 3));
    EXPECT_EQ(fields.getFieldCount(), 2);

    EXPECT_EQ(fill(fields, "{field0}/{field1}", 0, 0), "north/1.5");
    EXPECT_EQ(fill(fields, "[{field0}]", 0, 1), "[]");
    EXPECT_EQ(fill(fields, "{field0}", 0, 2), "south");
    EXPECT_EQ(fill(fields, "{dsField0}{diField0}", 2, 0), "southnorth");
    EXPECT_EQ(fill(fields, "{dsdiField0}", 1, 0), "1.5");
    EXPECT_EQ(fill(fields, "{field1|1}", 0, 0), "1.5");
    EXPECT_EQ(fill(fields, "{field1}", 0, 1), "Jun 01, 2021");
    EXPECT_EQ(fill(fields, "{field1}", 0, 2), "Jun 01, 2021 08:30:00");
    EXPECT_EQ(fill(fields, "{field1|yyyy}", 0, 2), "2021");
    EXPECT_EQ(fill(fields, "{={field1}*2}", 0, 0), "3");
    // A text row out of range empties the attribute; a number row leaves it.
    EXPECT_EQ(fill(fields, "[{field0}]", 0, 3), "[]");
    EXPECT_EQ(fill(fields, "[{field1}]", 0, 3), "[{field1}]");
    EXPECT_EQ(fill(fields, "[{field1}]", 0, -1), "[{field1}]");
    // Not ours: no number, an unknown column, another name.
    EXPECT_EQ(fill(fields, "{field}{field2}{dsdiField1}{value}", 1, 0),
              "{field}{field2}{dsdiField1}{value}");

    VSParser parser("{field1}", 0);
    Formatter formatter;
    const char *name = parser.getNextAttr();
    EXPECT_TRUE(fields.formatAttr(&parser, &formatter, 0, 9, name));
    EXPECT_FALSE(fields.formatAttr(&parser, &formatter, 0, 0, "field7"));
    EXPECT_FALSE(fields.formatAttr(&parser, &formatter, 0, 0, "label"));
}

TEST(TemplateHelpers, AttrIndex) {
    EXPECT_EQ(getAttrIndex("value", "value"), -1);
    EXPECT_EQ(getAttrIndex("value3", "value"), 3);
    EXPECT_EQ(getAttrIndex("value0", "value"), 0);
    EXPECT_EQ(getAttrIndex("value12x", "value"), 12);
    EXPECT_EQ(getAttrIndex("valuex", "value"), -1);
    EXPECT_EQ(getAttrIndex("val", "value"), -2);
    EXPECT_EQ(getAttrIndex("Value1", "value"), -2);
    EXPECT_EQ(getAttrIndex("value99999999999999", "value"), 2147483647);
    EXPECT_EQ(getAttrIndex(nullptr, "value"), -2);
}

TEST(TemplateHelpers, DatesAndStrings) {
    EXPECT_TRUE(lookLikeDate(Chart::chartTime(1800, 1, 1, 0, 0, 0)));
    EXPECT_TRUE(lookLikeDate(Chart::chartTime(2200, 1, 1, 0, 0, 0)));
    EXPECT_FALSE(lookLikeDate(Chart::chartTime(1800, 1, 1, 0, 0, 0) - 1));
    EXPECT_FALSE(lookLikeDate(Chart::chartTime(2200, 1, 1, 0, 0, 1)));
    EXPECT_FALSE(lookLikeDate(1e6));

    EXPECT_EQ(replaceString("aXbXX", "X", "YX"), "aYXbYXYX");
    EXPECT_EQ(replaceString("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(replaceString("abc", "b", nullptr), "ac");
    EXPECT_EQ(replaceString(nullptr, "b", "c"), "");
    EXPECT_EQ(replaceString("abc", "", "c"), "abc");

    EXPECT_EQ(combineQuery("x=1&{default}&{default}", "d=2"), "x=1&d=2&d=2");
    EXPECT_EQ(combineQuery("", "d=2"), "d=2");
    EXPECT_EQ(combineQuery(nullptr, nullptr), "");

    EXPECT_EQ(urlJoin("", "a=1"), "");
    EXPECT_EQ(urlJoin(nullptr, "a=1"), "");
    EXPECT_EQ(urlJoin("page.html", nullptr), "page.html");
    EXPECT_EQ(urlJoin("page.html", " "), "page.html");
    EXPECT_EQ(urlJoin("page.html", "a=1"), "page.html?a=1");
    EXPECT_EQ(urlJoin("page.html?x=0", "a=1"), "page.html?x=0&a=1");
    EXPECT_EQ(urlJoin("page.html?x=0", "&a=1"), "page.html?x=0&a=1");
    EXPECT_EQ(urlJoin("page.html", "?a=1"), "page.html?a=1");
    EXPECT_EQ(urlJoin("f({queryParam});g({queryParam})", "a=1&b=2"),
              "f(a=1\x1e"
              "b=2);g(a=1\x1e"
              "b=2)");
}
