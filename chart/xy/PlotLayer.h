#pragma once

class Axis;
class Layer;

// What an XY chart asks of each of its layers.  The layer framework's
// LayerImpl implements it, and the chart owns its layers through it.
//
// Layout, in the chart's order: layoutLegend() in the legend step; preLayout
// with the plot's extent along the x axis; then, each time the axes are laid
// out, setSize with the plot rectangle moved back by the 3D depth of the
// layers before it, and foldDataRange for every axis, from which the axes make
// their scales; last layoutChart().
//
// Painting: after the plot background, the zones, the grid, the marks behind
// the data and the chart's objects up to z 0xFFFE, the layers paint() from the
// last added to the first, so that the first added stands on top, clipped to
// the plot when the chart clips; then paintAbove() in the same order and
// unclipped, for what stands above every layer; then the plot edge, the axes
// and the marks on top.
class PlotLayer {
public:
    // Deletes the layer and everything it owns.
    virtual void release() = 0;
    // The layer as the public interface knows it.
    virtual Layer *getLayer() = 0;

    virtual void layoutLegend() = 0;
    virtual void preLayout(int length) = 0;
    // The plot rectangle the layer draws in; with swapXY the x values run
    // down the height.
    virtual void setSize(int x, int y, int width, int height, bool swapXY) = 0;
    // The 3D shift of the layer's back: right by getDepthX, up by getDepthY.
    virtual int getDepthX() const = 0;
    virtual int getDepthY() const = 0;
    // Folds the layer's smallest and largest value on the axis into *min and
    // *max when the layer uses the axis; isXAxis says that the axis is the
    // chart's x axis, which every layer uses for its positions.
    virtual void foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) = 0;
    virtual void layoutChart() = 0;

    virtual void paint() = 0;
    virtual void paintAbove() = 0;

    // Whether the layer has x positions of its own, and the one nearest to a
    // pixel position along the x axis.
    virtual bool hasXData() const = 0;
    virtual double getNearestXValue(double coor) = 0;

    // The "<area>" elements of the layer's hot spots, each ended by a new
    // line; null or empty for none.  The chart has been laid out.
    virtual const char *getHTMLImageMap(const char *url, const char *queryFormat,
                                        const char *extraAttr, int offsetX, int offsetY) = 0;

protected:
    virtual ~PlotLayer() {}
};
