#pragma once

#include <vector>

class DrawArea;

// What a layer paints through.  Points are given as the layer sees them, x in
// the pixel of the x axis and y in the pixel of the value axis; the painter
// swaps the two on a chart whose axes are swapped and shifts everything by the
// layer's 3D offset, so that one paint routine serves every chart.
class LayerPainter {
public:
    LayerPainter(DrawArea *d, bool swapXY, int offsetX, int offsetY);
    // Restores clips left pushed.
    ~LayerPainter();
    LayerPainter(const LayerPainter &) = delete;
    LayerPainter &operator=(const LayerPainter &) = delete;

    DrawArea *getDrawArea() const { return canvas; }
    // The canvas pixel of a layer point.
    void map(double x, double y, double *px, double *py) const;

    void line(double x1, double y1, double x2, double y2, int color, int lineWidth);
    // Starts a run of joined segments at (x, y); lineTo draws the next one.
    void initLineTo(double x, double y);
    void lineTo(double x, double y, int color, int lineWidth);
    void polygon(const double *x, const double *y, int n, int edgeColor, int fillColor);
    void rect(double x1, double y1, double x2, double y2, int edgeColor, int fillColor,
              int raisedEffect);
    // The face between the edge (x1, y1)-(x2, y2) and its copy moved back by the
    // depth, which is in canvas pixels.
    void surface(double x1, double y1, double x2, double y2, int depthX, int depthY, int edgeColor,
                 int fillColor);
    // The same face shaded from brightness1 at the first end to brightness2 at
    // the second, with exact pixel coverage so that neighbouring strips meet.
    void exactStrip(double x1, double y1, double x2, double y2, int depthX, int depthY, int color,
                    double brightness1, double brightness2);
    // The area between the segment (x1, y1)-(x2, y2) and the value base.
    void vFill(double x1, double y1, double x2, double y2, double base, int color);
    // Limits drawing to a layer rectangle until the matching pop.
    void pushClipRect(double x1, double y1, double x2, double y2);
    void popClipRect();
    // Whether two colour words stand for different colours on this canvas.
    bool isDifferentColor(int a, int b) const;

private:
    struct Clip {
        int left, top, right, bottom;
    };

    DrawArea *canvas;
    bool swapXY;
    int offsetX;
    int offsetY;
    double lastX;
    double lastY;
    std::vector<Clip> clips;
};
