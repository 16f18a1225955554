#include "chart/layer/LayerLegendText.h"

#include "chart/layer/LayerImpl.h"

std::string LayerLegendText::getText(const char *templateText, int flags) {
    return layer->fillSetTemplate(dataSet, templateText, flags);
}
