#pragma once

#include "chart/legend/LegendText.h"

class LayerImpl;

// The legend key text of a layer's data set: the legend's template filled
// with the set's attributes.
class LayerLegendText : public LegendText {
public:
    LayerLegendText(LayerImpl *layer, int dataSet) : layer(layer), dataSet(dataSet) {}
    std::string getText(const char *templateText, int flags) override;

private:
    LayerImpl *layer;
    int dataSet;
};
