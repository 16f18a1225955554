#pragma once

#include <string>

class BaseChart;
class Formatter;
class TemplateFieldSource;

// Fills a template with the attributes of one sector: label and dataSetName
// (its label), value, percent ("2" decimals by default), sector and dataSet
// (its number); then the chart's extra fields for data set -1 and the
// sector's number as data item, then the chart's own attributes.
class SectorTemplate {
public:
    struct Fields {
        const char *label;
        double value;
        double percent;
        int index;
    };

    SectorTemplate(Formatter *formatter, TemplateFieldSource *chartFields, BaseChart *chart);

    // flags: the template parser's escaping flags.
    std::string fill(const char *templateText, int flags, const Fields &fields) const;

private:
    Formatter *formatter;
    TemplateFieldSource *chartFields;
    BaseChart *chart;
};
