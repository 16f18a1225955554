#include "text/template/VSParser.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"

namespace {

// Fills "value" with v through the formatter and "label" with label; leaves the rest.
std::string fill(const char *tmpl, int flags, double v, const char *label = "",
                 Formatter *formatter = nullptr) {
    Formatter own;
    Formatter *f = formatter ? formatter : &own;
    VSParser parser(tmpl, flags);
    while (const char *name = parser.getNextAttr()) {
        std::string attr = name;
        if (attr == "value") parser.replaceAttr(f->format(parser.getFormatString(), v));
        if (attr == "label") parser.replaceAttr(label);
    }
    return parser.getResult(f);
}

}  // namespace

TEST(VSParser, AttributesAndFormats) {
    EXPECT_EQ(fill("{value|2,.}", 0, 1234567.891), "1,234,567.89");
    EXPECT_EQ(fill("{value|0}", 0, 0.4), "0");
    EXPECT_EQ(fill("{value|2}", 0, -0.001), "0.00");
    EXPECT_EQ(fill("{value}", 0, 0.1), "0.1");
    EXPECT_EQ(fill("{value}", 0, 100000000.5), "100000001");
    EXPECT_EQ(fill("{value|g}", 0, 0.00001), "1e-5");
    EXPECT_EQ(fill("{value|e}", 0, 1500), "1.500e+3");
    EXPECT_EQ(fill("{value|p3}", 0, 123.456), "123.5");
    EXPECT_EQ(fill("{value|mmm dd, yyyy}", 0, 1.7e308), "");
    EXPECT_EQ(fill("<{value|mmm dd, yyyy}>", 0, Chart::chartTime(2020, 1, 5, 0, 0, 0)),
              "<Jan 05, 2020>");
    // Unknown and unterminated attributes stay as typed, braces included.
    EXPECT_EQ(fill("{unknown|2} {value}", 0, 3), "{unknown|2} 3");
    EXPECT_EQ(fill("{value} {value", 0, 3), "3 {value");
    EXPECT_EQ(fill("a{", 0, 3), "a{");
    EXPECT_EQ(fill("", 0, 3), "");
    EXPECT_EQ(fill(nullptr, 0, 3), "");

    VSParser parser("{ name with blanks |fmt}{x|}", 0);
    EXPECT_STREQ(parser.getNextAttr(), " name with blanks ");
    EXPECT_STREQ(parser.getFormatString(), "fmt");
    EXPECT_STREQ(parser.getNextAttr(), "x");
    EXPECT_STREQ(parser.getFormatString(), "");
    EXPECT_EQ(parser.getNextAttr(), nullptr);

    // Names and formats are cut at 255 bytes.
    std::string longTemplate = "{" + std::string(300, 'n') + "|" + std::string(300, 'f') + "}";
    parser.init(longTemplate.c_str(), 0);
    EXPECT_EQ(std::string(parser.getNextAttr()), std::string(255, 'n'));
    EXPECT_EQ(std::string(parser.getFormatString()), std::string(255, 'f'));
}

TEST(VSParser, ReplaceRanges) {
    VSParser parser("abcdef", 0);
    EXPECT_EQ(parser.replaceAttr("XY", 1, 3), 3);
    EXPECT_STREQ(parser.getText(), "aXYdef");
    EXPECT_EQ(parser.replaceAttr("Z", 4, -1), -1);
    EXPECT_STREQ(parser.getText(), "aXYdZ");
    EXPECT_EQ(parser.replaceAttr("Z", 3, 9), -1);
    EXPECT_EQ(parser.replaceAttr("Z", 3, 2), -1);
    EXPECT_STREQ(parser.getText(), "aXYdZ");
    // Replacing twice does not eat the text behind the first replacement.
    parser.init("{a}bc", 0);
    parser.getNextAttr();
    parser.replaceAttr("1");
    parser.replaceAttr("2");
    EXPECT_STREQ(parser.getText(), "1bc");
}

TEST(VSParser, Expressions) {
    EXPECT_EQ(fill("{=1+2+3}", 0, 0), "3");
    EXPECT_EQ(fill("{=(1+2)+3}", 0, 0), "6");
    EXPECT_EQ(fill("{=2*3^2}", 0, 0), "36");
    EXPECT_EQ(fill("{=10-4/2}", 0, 0), "8");
    EXPECT_EQ(fill("{=-3*2}", 0, 0), "-6");
    EXPECT_EQ(fill("{=7%4}", 0, 0), "3");
    EXPECT_EQ(fill("{=-7%4}", 0, 0), "-3");
    EXPECT_EQ(fill("{=2*(3+4)*2|1}", 0, 0), "28.0");
    EXPECT_EQ(fill("{=0/0}", 0, 0), "1");
    EXPECT_EQ(fill("{=1/0|e2}", 0, 0), "1.79e+308");
    EXPECT_EQ(fill("{=-1/0|e2}", 0, 0), "-1.79e+308");
    EXPECT_EQ(fill("{=abc+2}", 0, 0), "2");
    EXPECT_EQ(fill("{=}", 0, 0), "0");
    EXPECT_EQ(fill("{=1.5e+2 + 1}", 0, 0), "151");
    EXPECT_EQ(fill("{ = 4*2 }", 0, 0), "8");
    EXPECT_EQ(fill("a{=1+1}b{=2*2}c", 0, 0), "a2b4c");
    EXPECT_EQ(fill("{=1+2", 0, 0), "{=1+2");
    // The inner attribute is written plain; the outer format applies.
    EXPECT_EQ(fill("{={value}*100|1}", 0, 0.256), "25.6");
    EXPECT_EQ(fill("{={value}*2} {value}", 0, 1234567.5, "", nullptr), "2469135 1234567.5");
    Formatter grouped;
    grouped.setNumberFormat(',', '.', '-');
    EXPECT_EQ(fill("{={value}/1000|1} {value}", 0, 1234567, "", &grouped), "1,234.6 1,234,567");
    EXPECT_EQ(fill("{={value}*1e7}", 0, -2.5e-7), "-2.5");
    // With no formatter the expressions stay.
    VSParser parser("{=1+1}", 0);
    EXPECT_STREQ(parser.getResult(nullptr), "{=1+1}");
    // Deep nesting neither overflows nor hangs.
    std::string deep = "{=" + std::string(100000, '(') + "1}";
    EXPECT_FALSE(fill(deep.c_str(), 0, 0).empty());
}

TEST(VSParser, Escaping) {
    const char *text = "a b%c?d&e+f=g#h'i\"j>k<l\\m\nn";
    EXPECT_EQ(fill("{label}", 0, 0, text), text);
    EXPECT_EQ(fill("{label}", VSParser::kEscapeHTML, 0, text),
              "a b%c?d&e+f=g#h&#39;i&#34;j&#62;k<l\\m\nn");
    EXPECT_EQ(fill("{label}", VSParser::kEscapeURL, 0, text),
              "a%20b%25c%3Fd%26e%2Bf%3Dg%23h&#39;i&#34;j&#62;k<l\\m\nn");
    EXPECT_EQ(fill("{label}", VSParser::kEscapeJS, 0, text),
              "a b%c?d&e+f=g#h\\'i\\\"j>k<l\\\\m\\nn");
    EXPECT_EQ(fill("{label}", VSParser::kEscapeJS | VSParser::kEscapeHTML, 0, "'"), "\\&#39;");
    // Template text itself is never escaped.
    EXPECT_EQ(fill("x=1&y='{label}'", VSParser::kEscapeURL, 0, "a b"), "x=1&y='a%20b'");

    // A script in an attribute gets HTML escaping instead of URL escaping.
    VSParser script("JavaScript:f('{label}')", VSParser::kEscapeURL);
    EXPECT_EQ(script.getFlags(), VSParser::kEscapeHTML);
    EXPECT_EQ(fill("javascript:f('{label}')", VSParser::kEscapeURL, 0, "a b'"),
              "javascript:f('a b&#39;')");
    EXPECT_EQ(fill("javascript:f('{label}')", VSParser::kEscapeURL | VSParser::kEscapeJS, 0, "'"),
              "javascript:f('\\&#39;')");
    EXPECT_EQ(fill("javascript", VSParser::kEscapeURL, 0), "javascript");

    // Mark-up goes from inserted text when escaping; a line break becomes a blank.
    const char *styled = "<*font=bold*>Big<*/*> one<*br*>two <<*x*> <*unterminated";
    EXPECT_EQ(fill("{label}", 0, 0, styled), styled);
    EXPECT_EQ(fill("{label}", VSParser::kEscapeHTML, 0, styled), "Big one two <*x*&#62; ");
    EXPECT_TRUE(VSParser("", VSParser::kEscapeJS).isStrippingMarkup());
    EXPECT_FALSE(VSParser("", VSParser::kOldDelimiter).isStrippingMarkup());
}

TEST(VSParser, EscapeWords) {
    EXPECT_EQ(fill("{noescape_url}{label}", VSParser::kEscapeURL, 0, "a b"), "a b");
    EXPECT_EQ(fill("{label}{noescape_url}{label}", VSParser::kEscapeURL, 0, "a b"), "a%20ba b");
    EXPECT_EQ(fill("{escape_url}{label}", 0, 0, "a b"), "a%20b");
    EXPECT_EQ(fill("{escape_html}{label}", 0, 0, ">"), "&#62;");
    EXPECT_EQ(fill("{escape_js}{label}", 0, 0, "'"), "\\'");
    EXPECT_EQ(fill("{noescape_js}{label}", VSParser::kEscapeJS, 0, "'"), "'");
    // "noescape_html" ends script escaping too.
    EXPECT_EQ(fill("{noescape_html}{label}", VSParser::kEscapeHTML | VSParser::kEscapeJS, 0, "'"),
              "'");
    // The mark-up words act the other way round.
    EXPECT_EQ(fill("{escape_vsml}{label}", VSParser::kEscapeHTML, 0, "<*b*>x"), "<*b*&#62;x");
    EXPECT_EQ(fill("{noescape_vsml}{label}", 0, 0, "<*b*>x"), "x");
    // With a format, or at the template's end, the rules still hold.
    EXPECT_EQ(fill("{escape_html|x}{label}", 0, 0, ">"), "{escape_html|x}>");
    EXPECT_EQ(fill("{label}{escape_html}", 0, 0, ">"), ">");
    EXPECT_EQ(fill("{escape_html}", 0, 0), "");
}

TEST(VSParser, OldDelimiter) {
    EXPECT_EQ(fill("&label&", 0, 0, "L"), "&label&");
    EXPECT_EQ(fill("&label&", VSParser::kOldDelimiter, 0, "L"), "L");
    EXPECT_EQ(fill("&label& {value}", VSParser::kOldDelimiter, 5, "L"), "L 5");
    EXPECT_EQ(fill("{value} &value|1&", VSParser::kOldDelimiter, 5), "5 5.0");
    EXPECT_EQ(fill("&a{label}&", VSParser::kOldDelimiter, 0, "L"), "&aL&");
    EXPECT_EQ(fill("x & y", VSParser::kOldDelimiter, 0), "x & y");
    EXPECT_EQ(fill("x &", VSParser::kOldDelimiter, 0), "x &");
}
