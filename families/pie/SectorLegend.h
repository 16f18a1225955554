#pragma once

#include "chart/legend/LegendText.h"

class PieChartImpl;

// The legend key text of a sector: the legend's template filled with the
// sector's attributes.
class SectorLegend : public LegendText {
public:
    SectorLegend(PieChartImpl *chart, int sector) : chart(chart), sector(sector) {}
    std::string getText(const char *templateText, int flags) override;

private:
    PieChartImpl *chart;
    int sector;
};
