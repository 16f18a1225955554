#pragma once

#include <string>

// Writes one XML element of an SVG document into a string: the tag, its
// attributes in single quotes, then either the end of an empty element or the
// end of the start tag.  Numbers go through NumberText: C locale, no exponent.
class SVGElement {
public:
    SVGElement(std::string &out, const char *tag, int decimals);
    // An element left unfinished is finished empty.
    ~SVGElement();
    SVGElement(const SVGElement &) = delete;
    SVGElement &operator=(const SVGElement &) = delete;

    // The value is escaped for an attribute in single quotes.
    SVGElement &attr(const char *name, const char *value);
    SVGElement &attr(const char *name, const std::string &value) {
        return attr(name, value.c_str());
    }
    SVGElement &number(const char *name, double value);
    SVGElement &integer(const char *name, long long value);
    // A colour word's red, green and blue as "#rrggbb".
    SVGElement &color(const char *name, int color);
    // A value written as it stands: numbers and names the caller formatted.
    SVGElement &raw(const char *name, const std::string &value);
    // A style attribute in double quotes: CSS uses single quotes for names.
    SVGElement &style(const std::string &css);
    // Attributes the caller wrote out: " name='value'", each with its blank.
    SVGElement &append(const std::string &attributes);
    // "/>" and a new line.
    void close();
    // ">": content follows, and the caller writes the end tag.
    void open();

    // Text escaped for XML content or attributes: markup characters and
    // everything beyond ASCII as character references.
    static void appendEscaped(std::string &out, const char *text);
    // Characters of a text (Unicode code points) as XML content; characters XML
    // can't hold are left out, halves of surrogate pairs joined.
    static void appendCharacters(std::string &out, const int *chars, int count);
    static std::string colorText(int color);

private:
    std::string &out;
    int decimals;
    bool finished;
};
