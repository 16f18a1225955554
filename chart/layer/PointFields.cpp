#include "chart/layer/PointFields.h"

#include <cmath>
#include <cstring>

#include "chart/axis/AxisImpl.h"
#include "chart/layer/DataSetImpl.h"
#include "chart/layer/LayerImpl.h"
#include "chart/xy/XYChartImpl.h"
#include "foundation/Constants.h"
#include "text/template/Formatter.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

const char *const kPercentFormat = "2";
const char *const kUndefinedPercent = "[undef]";
const double kOneDay = 86400;

}  // namespace

void PointFields::replaceNumber(VSParser *parser, double value) {
    parser->replaceAttr(formatter->format(parser->getFormatString(), value));
}

void PointFields::replacePercent(VSParser *parser, double part, double total) {
    if (part == kNoValue) {
        parser->replaceAttr("");
        return;
    }
    if (total == 0) {
        parser->replaceAttr(part == 0 ? formatter->format(kPercentFormat, 0) : kUndefinedPercent);
        return;
    }
    const char *format = parser->getFormatString();
    parser->replaceAttr(formatter->format(*format ? format : kPercentFormat, part / total * 100));
}

// A bare x that looks like a date is written as one.
void PointFields::replaceX(VSParser *parser, double x) {
    const char *format = parser->getFormatString();
    if (!*format && lookLikeDate(x))
        format = std::fmod(x, kOneDay) == 0 ? "mmm dd, yyyy" : "mmm dd, yyyy hh:nn:ss";
    parser->replaceAttr(formatter->format(format, x));
}

double PointFields::groupTotal(const LabelSpot &p) const {
    const StackedValues &stacks = layer.getStacks();
    bool magnitude = layer.getCombineMethod() == kPercentage;
    return stacks.accValue(stacks.groupBegin(p.dataGroup), stacks.groupEnd(p.dataGroup), p.dataItem,
                           magnitude);
}

double PointFields::accumulated(const LabelSpot &p) const {
    if (p.aggregate) return groupTotal(p);
    const StackedValues &stacks = layer.getStacks();
    bool magnitude = layer.getCombineMethod() == kPercentage;
    return stacks.accValue(stacks.groupBegin(p.dataGroup), p.dataSet + 1, p.dataItem, magnitude);
}

bool PointFields::fill(VSParser *parser, const char *name, const LabelSpot &p) {
    const StackedValues &stacks = layer.getStacks();
    DataSetImpl *set = layer.dataSetAt(p.dataSet);
    bool magnitude = layer.getCombineMethod() == kPercentage;
    double value = p.value;
    if (!strcmp(name, "value")) {
        replaceNumber(parser, value);
    } else if (!strcmp(name, "dataSet")) {
        parser->replaceAttr(std::to_string(p.aggregate ? -1 : p.dataSet).c_str());
    } else if (!strcmp(name, "dataSetName")) {
        parser->replaceAttr(p.aggregate ? layer.getGroupName(p.dataGroup).c_str()
                            : set       ? set->getName().c_str()
                                        : "");
    } else if (!strcmp(name, "dataItem")) {
        parser->replaceAttr(std::to_string(p.dataItem).c_str());
    } else if (!strcmp(name, "dataGroup")) {
        parser->replaceAttr(std::to_string(p.dataGroup).c_str());
    } else if (!strcmp(name, "dataGroupName")) {
        parser->replaceAttr(layer.getGroupName(p.dataGroup).c_str());
    } else if (!strcmp(name, "layerId")) {
        parser->replaceAttr(std::to_string(layer.getLayerIndex()).c_str());
    } else if (!strcmp(name, "x")) {
        replaceX(parser, layer.xValue(p.dataItem));
    } else if (!strcmp(name, "xLabel") || !strcmp(name, "x2Label")) {
        XYChartImpl *chart = layer.getChart();
        AxisImpl *axis = AxisImpl::of(name[1] == '2' ? chart->xAxis2() : chart->xAxis());
        double x = layer.xValue(p.dataItem);
        const char *label = x == kNoValue ? "" : axis->getLabel(x);
        if (label)
            parser->replaceAttr(label);
        else
            replaceX(parser, x);
    } else if (!strcmp(name, "accValue")) {
        replaceNumber(parser, accumulated(p));
    } else if (!strcmp(name, "totalValue")) {
        replaceNumber(parser, groupTotal(p));
    } else if (!strcmp(name, "percent")) {
        replacePercent(parser, magnitude && value != kNoValue ? std::fabs(value) : value,
                       groupTotal(p));
    } else if (!strcmp(name, "accPercent")) {
        replacePercent(parser, accumulated(p), groupTotal(p));
    } else if (!strcmp(name, "gpercent")) {
        replacePercent(parser, magnitude && value != kNoValue ? std::fabs(value) : value,
                       stacks.accValue(0, layer.getDataSetCount(), p.dataItem, magnitude));
    } else {
        int n = getAttrIndex(name, "value");
        if (n < 0) return false;
        replaceNumber(parser, stacks.value(n, p.dataItem));
    }
    return true;
}
