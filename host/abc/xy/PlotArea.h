#pragma once

#include "api/xy/CPlotArea.h"
#include "host/abc/VSObject.h"
#include "host/abc/chart/Axis.h"

namespace abc {

class Layer;

// The plot rectangle of an XY chart.  The wrapper belongs to the chart's.
class PlotArea : public VSObject {
public:
    explicit PlotArea(CPlotArea *handle) : handle(handle) {}

    CPlotArea *getHandle() const { return handle; }
    void setBackground(int color, int altBgColor, int edgeColor) {
        CPlotArea_setBackground(handle, color, altBgColor, edgeColor);
    }
    void setBackground2(const char *path, int align) {
        CPlotArea_setBackground2(handle, path, align);
    }
    void set4QBgColor(int q1Color, int q2Color, int q3Color, int q4Color, int edgeColor) {
        CPlotArea_set4QBgColor(handle, q1Color, q2Color, q3Color, q4Color, edgeColor);
    }
    void setAltBgColor(bool horizontal, int color1, int color2, int edgeColor) {
        CPlotArea_setAltBgColor(handle, horizontal, color1, color2, edgeColor);
    }
    void setGridColor(int hGridColor, int vGridColor, int minorHGridColor, int minorVGridColor) {
        CPlotArea_setGridColor(handle, hGridColor, vGridColor, minorHGridColor, minorVGridColor);
    }
    void setGridWidth(int hGridWidth, int vGridWidth, int minorHGridWidth, int minorVGridWidth) {
        CPlotArea_setGridWidth(handle, hGridWidth, vGridWidth, minorHGridWidth, minorVGridWidth);
    }
    void setGridAxis(Axis *xGridAxis, Axis *yGridAxis) {
        CPlotArea_setGridAxis(handle, Axis::handleOf(xGridAxis), Axis::handleOf(yGridAxis));
    }
    void moveGridBefore(Layer *layer);
    int getLeftX() { return CPlotArea_getLeftX(handle); }
    int getTopY() { return CPlotArea_getTopY(handle); }
    int getWidth() { return CPlotArea_getWidth(handle); }
    int getHeight() { return CPlotArea_getHeight(handle); }
    int getRightX() { return CPlotArea_getRightX(handle); }
    int getBottomY() { return CPlotArea_getBottomY(handle); }

private:
    CPlotArea *handle;
};

}  // namespace abc
