#pragma once

class Axis;
class Layer;

// The plot rectangle of an XY chart: its background, grid and edge.
class PlotArea {
public:
    // An altBgColor other than -1 paints alternate bands between the horizontal
    // grid lines.  An edgeColor of -1 draws no edge.
    virtual void setBackground(int color, int altBgColor, int edgeColor) = 0;
    // A picture in the plot area: placed once at an alignment (1 to 9), tiled
    // for any other.
    virtual void setBackground2(const char *path, int align) = 0;
    // One colour for each quadrant around the point where the x and y axes have
    // the value 0: upper right, upper left, lower left, lower right.
    virtual void set4QBgColor(int q1Color, int q2Color, int q3Color, int q4Color,
                              int edgeColor) = 0;
    // Bands of the two colours in turn between the grid lines: horizontal
    // bands between the horizontal lines, or vertical ones.
    virtual void setAltBgColor(bool horizontal, int color1, int color2, int edgeColor) = 0;
    // Minor lines, at the minor ticks, are drawn only in a colour of their own:
    // -1 draws none.
    virtual void setGridColor(int hGridColor, int vGridColor, int minorHGridColor,
                              int minorVGridColor) = 0;
    // -1 takes the horizontal width, and for the minor ones the major width.
    virtual void setGridWidth(int hGridWidth, int vGridWidth, int minorHGridWidth,
                              int minorVGridWidth) = 0;
    // The axes whose ticks the grid lines follow; null keeps the x or y axis.
    virtual void setGridAxis(Axis *xGridAxis, Axis *yGridAxis) = 0;
    // Draws the grid just beneath the layer, or above every layer for null.
    virtual void moveGridBefore(Layer *layer) = 0;

    virtual int getLeftX() const = 0;
    virtual int getTopY() const = 0;
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    // x + width and y + height: where the right and bottom axes stand.
    virtual int getRightX() const = 0;
    virtual int getBottomY() const = 0;

protected:
    virtual ~PlotArea() {}
};
