#pragma once

#include <string>

#include "chart/layer/LabelSpot.h"

class Formatter;
class LayerImpl;
class VSParser;

// The template attributes of a layer's point: value, valueN (the value of
// data set N), dataSet, dataSetName, dataItem, dataGroup, dataGroupName, x,
// xLabel, x2Label, accValue, totalValue, percent, accPercent, gpercent and
// layerId.  For a stack's aggregate label, value is the stack's total and
// dataSetName the group's name.  Percentages count within the point's data
// group, gpercent over every set of the layer; they default to 2 decimals.
class PointFields {
public:
    PointFields(LayerImpl &layer, Formatter *formatter) : layer(layer), formatter(formatter) {}

    // Replaces the attribute if it is one of the point's; false otherwise.
    bool fill(VSParser *parser, const char *name, const LabelSpot &point);

private:
    void replaceNumber(VSParser *parser, double value);
    void replacePercent(VSParser *parser, double part, double total);
    void replaceX(VSParser *parser, double x);
    double groupTotal(const LabelSpot &point) const;
    double accumulated(const LabelSpot &point) const;

    LayerImpl &layer;
    Formatter *formatter;
};
