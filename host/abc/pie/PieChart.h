#pragma once

#include "api/pie/CPieChart.h"
#include "host/abc/Views.h"
#include "host/abc/chart/BaseChart.h"
#include "host/abc/chart/TextBox.h"
#include "host/abc/pie/Sector.h"

namespace abc {

// A pie chart.  It keeps one wrapper for each of its sectors; a sector the
// application holds stays usable when the data shrinks.
class PieChart : public BaseChart {
public:
    // Takes the chart over.
    explicit PieChart(CPieChart *handle)
        : BaseChart(CPieChart_toBaseChart(handle)), pieChart(handle) {}
    // A new chart; null if the engine made none.
    static PieChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    CPieChart *getPieHandle() const { return pieChart; }
    void setPieSize(int x, int y, int r) { CPieChart_setPieSize(pieChart, x, y, r); }
    void setDonutSize(int x, int y, int r, int r2) {
        CPieChart_setDonutSize(pieChart, x, y, r, r2);
    }
    void set3D(int depth, double angle, bool shadowMode) {
        CPieChart_set3D(pieChart, depth, angle, shadowMode);
    }
    void set3D2(DoubleArray depths, double angle, bool shadowMode) {
        CPieChart_set3D2(pieChart, depths.data, depths.len, angle, shadowMode);
    }
    void setData(DoubleArray data, StringArray labels) {
        CPieChart_setData(pieChart, data.data, data.len, labels.data, labels.len);
    }
    void setStartAngle(double startAngle, bool clockWise) {
        CPieChart_setStartAngle(pieChart, startAngle, clockWise);
    }
    void setExplode(int sectorNo, int distance) {
        CPieChart_setExplode(pieChart, sectorNo, distance);
    }
    void setExplodeGroup(int startSector, int endSector, int distance) {
        CPieChart_setExplodeGroup(pieChart, startSector, endSector, distance);
    }
    void setLabelFormat(const char *formatString) {
        CPieChart_setLabelFormat(pieChart, formatString);
    }
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) {
        return keepOnce(CPieChart_setLabelStyle(pieChart, font, fontSize, fontColor),
                        &TextBox::getTextBoxHandle);
    }
    void setLabelPos(int pos, int joinLineColor) {
        CPieChart_setLabelPos(pieChart, pos, joinLineColor);
    }
    void setLabelLayout(int layoutMethod, int pos, int topBound, int bottomBound) {
        CPieChart_setLabelLayout(pieChart, layoutMethod, pos, topBound, bottomBound);
    }
    void setJoinLine(int joinLineColor, int joinLineWidth) {
        CPieChart_setJoinLine(pieChart, joinLineColor, joinLineWidth);
    }
    void setLineColor(int edgeColor, int joinLineColor) {
        CPieChart_setLineColor(pieChart, edgeColor, joinLineColor);
    }
    void setSectorStyle(int shadingMethod, int edgeColor, int edgeWidth) {
        CPieChart_setSectorStyle(pieChart, shadingMethod, edgeColor, edgeWidth);
    }
    Sector *sector(int sectorNo) {
        return keepOnce(CPieChart_sector(pieChart, sectorNo), &Sector::getHandle);
    }

private:
    CPieChart *pieChart;
};

}  // namespace abc
