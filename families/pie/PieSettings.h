#pragma once

#include <string>
#include <vector>

#include "families/pie/PieChart.h"

// What a pie chart is told, with the defaults of a new chart.  Sectors take
// the settings they don't have of their own from here.
struct PieSettings {
    struct ExplodeGroup {
        int startSector;
        int endSector;
        int distance;
    };

    int cx = 0;
    int cy = 0;
    int radius = 0;
    int donutRadius = 0;
    // Degrees from 0 to 360; stored minus 360 when sectors run anti-clockwise.
    double startAngle = 0;
    int depth = 0;
    double depthAngle = 0;
    // Per sector, when set3D2 gave them.
    std::vector<double> depths;
    bool severalDepths = false;
    bool shadowMode = false;
    std::vector<ExplodeGroup> explodeList;
    // -1 is the default of the layout.
    int labelPos = -1;
    int labelLayout = kCircleLayout;
    int topBound = -1;
    int bottomBound = -1;
    int joinLineColor = -1;
    int joinLineWidth = 1;
    int edgeColor = -1;
    int shadingMethod = kDefaultShading;
    int edgeWidth = 1;
    std::string labelFormat;

    bool isClockwise() const { return startAngle >= 0; }
};
