#pragma once

#include "chart/base/BaseChart.h"

class Sector;
class TextBox;

// Label layouts.
enum PieLabelLayout {
    kSideLayout = 0,
    kCircleLayout = 1,
};

// Shading methods of a sector's top.
enum SectorShadingMethod {
    kDefaultShading = 0,
    kFlatShading = 1,
    kLocalGradientShading = 2,
    kGlobalGradientShading = 3,
    kConcaveShading = 4,
    kRoundedEdgeNoGlareShading = 5,
    kRoundedEdgeShading = 6,
    kRadialShading = 7,
    kRingShading = 8,
};

// A pie or donut, flat or in 3D, with exploded sectors and labels around the
// pie or in two columns beside it.  Angles are degrees, 0 at 12 o'clock.
class PieChart : public virtual BaseChart {
public:
    static PieChart *create(int width, int height, int bgColor, int edgeColor, int raisedEffect);

    // Centre and radius; a radius of 0 or less draws a pie of 1 pixel.
    virtual void setPieSize(int x, int y, int r) = 0;
    // The larger of r and r2 is the radius, the smaller the hole's.
    virtual void setDonutSize(int x, int y, int r, int r2) = 0;
    // depth -1: a twentieth of the chart's height; angle -1: 45 degrees, or 0
    // without depth.  The pie is tilted by angle, unless shadowMode, which
    // keeps it round and shifts its bottom by depth towards angle.
    virtual void set3D(int depth, double angle, bool shadowMode) = 0;
    // Each sector with a depth of its own, standing on a common bottom.
    virtual void set3D2(DoubleArray depths, double angle, bool shadowMode) = 0;
    // A value of kNoValue leaves its sector out; negative values count by their size.
    virtual void setData(DoubleArray data, StringArray labels) = 0;
    virtual void setStartAngle(double startAngle, bool clockWise) = 0;
    // distance -1 is a quarter of the radius.  Sector -1 explodes every sector.
    virtual void setExplode(int sectorNo, int distance) = 0;
    // The sectors from startSector to endSector (round the end) move out together.
    virtual void setExplodeGroup(int startSector, int endSector, int distance) = 0;
    // The label template: {label}, {value}, {percent}, {sector} and the chart's fields.
    virtual void setLabelFormat(const char *formatString) = 0;
    // The prototype of every label box.
    virtual TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) = 0;
    // pos below 32768: labels around the pie, pos pixels from the rim (inside
    // when negative).  32768 + n: labels in side columns n pixels from the pie.
    virtual void setLabelPos(int pos, int joinLineColor) = 0;
    // topBound and bottomBound limit the side columns; -1 is the chart's edge.
    virtual void setLabelLayout(int layoutMethod, int pos, int topBound, int bottomBound) = 0;
    virtual void setJoinLine(int joinLineColor, int joinLineWidth) = 0;
    virtual void setLineColor(int edgeColor, int joinLineColor) = 0;
    virtual void setSectorStyle(int shadingMethod, int edgeColor, int edgeWidth) = 0;
    // Null out of range.
    virtual Sector *sector(int sectorNo) = 0;

protected:
    ~PieChart() override {}
};
