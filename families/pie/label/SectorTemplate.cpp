#include "families/pie/label/SectorTemplate.h"

#include <cstring>

#include "chart/base/BaseChart.h"
#include "text/template/Formatter.h"
#include "text/template/TemplateFieldSource.h"
#include "text/template/VSParser.h"

namespace {

const char *const kPercentFormat = "2";

}  // namespace

SectorTemplate::SectorTemplate(Formatter *formatter, TemplateFieldSource *chartFields,
                               BaseChart *chart)
    : formatter(formatter), chartFields(chartFields), chart(chart) {}

std::string SectorTemplate::fill(const char *templateText, int flags, const Fields &f) const {
    VSParser parser(templateText, flags);
    while (const char *name = parser.getNextAttr()) {
        const char *format = parser.getFormatString();
        if (!strcmp(name, "label") || !strcmp(name, "dataSetName")) {
            parser.replaceAttr(f.label);
        } else if (!strcmp(name, "value")) {
            parser.replaceAttr(formatter->format(format, f.value));
        } else if (!strcmp(name, "percent")) {
            parser.replaceAttr(formatter->format(*format ? format : kPercentFormat, f.percent));
        } else if (!strcmp(name, "sector") || !strcmp(name, "dataSet")) {
            parser.replaceAttr(std::to_string(f.index).c_str());
        } else if (!(chartFields &&
                     chartFields->formatAttr(&parser, formatter, -1, f.index, name)) &&
                   chart) {
            chart->formatCustomAttr(&parser, name);
        }
    }
    return parser.getResult(formatter);
}
