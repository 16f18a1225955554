#pragma once

#include <string>
#include <vector>

#include "foundation/ArrayViews.h"

class DrawArea;

// The mark a data set draws at its points and a legend shows in its key: a
// shape, a picture file, or a canvas of the caller's.  A shape is drawn once
// into a canvas of its own and merged at each point, unless its colours depend
// on where it stands.
class DataSymbol {
public:
    DataSymbol();
    ~DataSymbol();
    DataSymbol(const DataSymbol &) = delete;
    DataSymbol &operator=(const DataSymbol &) = delete;

    // A size may be a packed width and height (Chart::xySize).  Colours of -1
    // take the data set's colours at layout.
    void setShape(int shape, int size, int fillColor, int edgeColor, int lineWidth);
    // Points as x, y pairs, kNewShape between polygons.
    void setPolygon(IntArray points, int size, int fillColor, int edgeColor);
    void setPolygon(DoubleArray points, int size, int fillColor, int edgeColor);
    void setImage(const char *path);
    // Borrowed: the canvas must outlive the symbol's use.
    void setCustom(DrawArea *symbol);
    void setSize(int width, int height);

    int getShape() const { return shape; }
    int getWidth() const { return width; }
    int getHeight() const { return height; }
    // Whether anything would be drawn.
    bool isVisible() const;

    // Prepares the symbol's canvas; runs once.  Circles, crosses and spheres
    // get odd sizes so that they centre on a pixel.
    void layoutLegend(DrawArea *d);
    // Settles the colours (-1 takes the ones given) and draws the shape into
    // the prepared canvas.
    void layoutChart(DrawArea *d, int dataColor, int edgeColor);
    // The symbol centred on (x, y) at the size asked for.
    void paint(DrawArea *d, int x, int y, int w, int h);
    // The symbol at its own size centred on each x, y pair of centres: one
    // record for all of them when the prepared canvas serves, else one shape
    // each (a colour defined by position is drawn in place).
    void paintAll(DrawArea *d, IntArray centres);
    // The shape directly, in the box with its top-left at (x, y).
    void draw(DrawArea *d, double x, double y, int w, int h);
    // One shape word in a box, with the colours given; polygon serves custom shapes.
    static void draw2(DrawArea *d, int shape, const std::vector<double> &polygon, double x,
                      double y, int w, int h, int fillColor, int edgeColor, int lineWidth);

private:
    static void drawCircle(DrawArea *d, int code, double x, double y, int w, int h, int fill,
                           int edge, int lineWidth);
    static void drawLineCross(DrawArea *d, bool diagonal, double x, double y, int w, int h,
                              int color, int lineWidth);
    static void drawOutline(DrawArea *d, int shape, const std::vector<double> &polygon, double x,
                            double y, int w, int h, int fill, int edge, int lineWidth);
    bool canMergePrepared(DrawArea *d, int w, int h) const;
    void releasePrepared();

    DrawArea *customSymbol;
    DrawArea *prepared;
    std::string imageFile;
    int shape;
    std::vector<double> polygon;
    int width;
    int height;
    int fillColor;
    int edgeColor;
    int lineWidth;
    // The colours settled by layoutChart.
    int drawFill;
    int drawEdge;
    bool legendLaidOut;
    bool preparedDrawn;
};
