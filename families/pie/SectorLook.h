#pragma once

#include <string>

// A sector's settings as the pie lays it out: its own where it has them, else
// the chart's, else the defaults of its label layout.
struct SectorLook {
    int color = 0;
    bool sideLayout = false;
    int labelPos = 0;
    int joinLineColor = 0;
    int joinLineWidth = 1;
    int edgeColor = 0;
    int edgeWidth = 1;
    int shading = 0;
    std::string labelFormat;
};
