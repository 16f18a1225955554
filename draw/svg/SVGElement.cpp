#include "draw/svg/SVGElement.h"

#include <cstdio>

#include "draw/vector/NumberText.h"

namespace {

void appendReference(std::string &out, long code) {
    char buf[24];
    std::snprintf(buf, sizeof buf, "&#%ld;", code);
    out += buf;
}

// Characters a document of XML 1.0 may hold.
bool isXmlChar(long c) {
    return c == 9 || c == 10 || c == 13 || (c >= 32 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

void appendCharacter(std::string &out, long c) {
    if (!isXmlChar(c)) return;
    if (c > 127 || c == '&' || c == '<' || c == '>' || c == '\'' || c == '"')
        appendReference(out, c);
    else
        out += (char)c;
}

}  // namespace

SVGElement::SVGElement(std::string &out, const char *tag, int decimals)
    : out(out), decimals(decimals), finished(false) {
    out += '<';
    out += tag;
}

SVGElement::~SVGElement() {
    if (!finished) close();
}

SVGElement &SVGElement::attr(const char *name, const char *value) {
    out += ' ';
    out += name;
    out += "='";
    appendEscaped(out, value ? value : "");
    out += '\'';
    return *this;
}

SVGElement &SVGElement::raw(const char *name, const std::string &value) {
    out += ' ';
    out += name;
    out += "='";
    out += value;
    out += '\'';
    return *this;
}

SVGElement &SVGElement::number(const char *name, double value) {
    out += ' ';
    out += name;
    out += "='";
    NumberText::append(out, value, decimals);
    out += '\'';
    return *this;
}

SVGElement &SVGElement::integer(const char *name, long long value) {
    out += ' ';
    out += name;
    out += "='";
    NumberText::appendInt(out, value);
    out += '\'';
    return *this;
}

SVGElement &SVGElement::style(const std::string &css) {
    out += " style=\"";
    out += css;
    out += '"';
    return *this;
}

SVGElement &SVGElement::append(const std::string &attributes) {
    out += attributes;
    return *this;
}

std::string SVGElement::colorText(int color) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "#%06x", (unsigned)color & 0xFFFFFFu);
    return buf;
}

SVGElement &SVGElement::color(const char *name, int color) {
    return raw(name, colorText(color));
}

void SVGElement::close() {
    out += "/>\n";
    finished = true;
}

void SVGElement::open() {
    out += '>';
    finished = true;
}

void SVGElement::appendEscaped(std::string &out, const char *text) {
    const unsigned char *p = (const unsigned char *)text;
    while (*p) {
        // A whole UTF-8 sequence becomes one character; a broken one is dropped.
        int extra = *p < 0x80   ? 0
                    : *p < 0xC2 ? -1
                    : *p < 0xE0 ? 1
                    : *p < 0xF0 ? 2
                    : *p < 0xF5 ? 3
                                : -1;
        long c = extra < 0 ? 0 : (extra == 0 ? *p : *p & (0x3F >> extra));
        int k = 1;
        for (; extra > 0 && k <= extra; ++k) {
            if ((p[k] & 0xC0) != 0x80) break;
            c = (c << 6) | (p[k] & 0x3F);
        }
        if (extra >= 0 && k == extra + 1) appendCharacter(out, c);
        p += extra > 0 ? k : 1;
    }
}

void SVGElement::appendCharacters(std::string &out, const int *chars, int count) {
    for (int i = 0; i < count; ++i) {
        long c = chars[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < count && chars[i + 1] >= 0xDC00 &&
            chars[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (chars[i + 1] - 0xDC00);
            ++i;
        }
        appendCharacter(out, c);
    }
}
