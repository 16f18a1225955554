#include "chart/axis/label/LabelTemplate.h"

#include <cstring>

#include "chart/axis/label/AxisLabel.h"
#include "text/template/Formatter.h"
#include "text/template/TemplateFieldSource.h"
#include "text/template/VSParser.h"

std::string LabelTemplate::fill(const char *tmpl, const AxisLabel &label, const char *valueFormat,
                                double tickInc, int itemIndex) const {
    if (tmpl && strcmp(tmpl, "{value}") == 0) return formatter->format(valueFormat, label.value);
    return fillByParser(tmpl, label, valueFormat, tickInc, itemIndex);
}

std::string LabelTemplate::fillByParser(const char *tmpl, const AxisLabel &label,
                                        const char *valueFormat, double tickInc,
                                        int itemIndex) const {
    if (!tmpl || !strchr(tmpl, '{')) return tmpl ? tmpl : "";
    VSParser parser(tmpl, 0);
    while (const char *name = parser.getNextAttr()) {
        const char *format = parser.getFormatString();
        if (strcmp(name, "value") == 0) {
            parser.replaceAttr(formatter->format(*format ? format : valueFormat, label.value));
        } else if (strcmp(name, "label") == 0) {
            parser.replaceAttr(label.text.c_str());
        } else if (strcmp(name, "tickInc") == 0) {
            parser.replaceAttr(formatter->format(format, tickInc));
        } else if (fields) {
            fields->formatAttr(&parser, formatter, -1, itemIndex, name);
        }
    }
    return parser.getResult(formatter);
}
