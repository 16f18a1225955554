#pragma once

class TextBox;

// One sector of a pie chart.  Settings left unset (-1, or an empty format)
// take the chart's.  Made by PieChart::setData and owned by the chart.
class Sector {
public:
    // shadingMethod: kDefaultShading (0) to kRingShading (8).
    virtual void setStyle(int shadingMethod, int edgeColor, int edgeWidth) = 0;
    // An empty format takes the chart's.
    virtual void setLabelFormat(const char *formatString) = 0;
    // The sector's own label box; what is not set on it is the chart's label style.
    virtual TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) = 0;
    // Moves the sector out of the pie along its bisector; -1 is a quarter of the radius.
    virtual void setExplode(int distance) = 0;
    // As PieChart::setLabelPos, for this sector.
    virtual void setLabelPos(int pos, int joinLineColor) = 0;
    virtual void setLabelLayout(int layoutMethod, int pos) = 0;
    virtual void setJoinLine(int joinLineColor, int joinLineWidth) = 0;
    virtual void setColor(int color, int edgeColor, int joinLineColor) = 0;
    // After layout: the image-map shape of the sector's top ("shape=\"poly\"
    // coords=\"...\""), and of its label's box; "" when there is none.  Valid
    // until the next call.
    virtual const char *getImageCoor(int offsetX, int offsetY) = 0;
    virtual const char *getLabelCoor(int offsetX, int offsetY) = 0;

protected:
    virtual ~Sector() {}
};
