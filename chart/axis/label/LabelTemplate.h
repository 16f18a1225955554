#pragma once

#include <string>

class AxisLabel;
class Formatter;
class TemplateFieldSource;

// Fills an axis label template.  "{value}" is the tick's value, "{label}" its
// present text and "{tickInc}" the step between major ticks; other attributes go
// to the field source (the chart's extra fields) and are otherwise left as typed.
// A text without braces is shown as it is.
class LabelTemplate {
public:
    LabelTemplate(Formatter *formatter, TemplateFieldSource *fields)
        : formatter(formatter), fields(fields) {}

    // valueFormat stands in for the format of a "{value}" that has none.  The
    // plain "{value}" of default labels is formatted directly.
    std::string fill(const char *tmpl, const AxisLabel &label, const char *valueFormat,
                     double tickInc, int itemIndex) const;
    // Every template through the parser: the general path fill() shortens.
    std::string fillByParser(const char *tmpl, const AxisLabel &label, const char *valueFormat,
                             double tickInc, int itemIndex) const;

private:
    Formatter *formatter;
    TemplateFieldSource *fields;
};
