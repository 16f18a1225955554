#pragma once

// Where a walked line puts its pixels.
class LineSink {
public:
    virtual ~LineSink() {}
    // Called once per step of the walk, in walking order, at the step's pixel.
    virtual int stepColor(int x, int y) = 0;
    // A pixel covered level / 16 (1 to 16) by the colour of its step.
    virtual void plot(int x, int y, int level, int color) = 0;
};

// Walks one-pixel lines.  Lines on whole numbers that are horizontal, vertical
// or diagonal are exact; others are clipped to the rectangle and walked along
// the major axis, anti-aliased as two pixels per step whose coverages add to 16.
class LineRasterizer {
public:
    LineRasterizer(int clipLeft, int clipTop, int clipRight, int clipBottom, bool antiAlias);
    void draw(double x1, double y1, double x2, double y2, LineSink *sink);
    // Skip the first step: the pixel was drawn as the end of the previous segment.
    void drawJoined(double x1, double y1, double x2, double y2, LineSink *sink, bool skipFirst);

    static bool isExact(double x1, double y1, double x2, double y2);
    // Cuts the segment to the rectangle; false when nothing is left.
    static bool clip(double &x1, double &y1, double &x2, double &y2, double left, double top,
                     double right, double bottom);

private:
    void exact(int x1, int y1, int x2, int y2, LineSink *sink, bool skipFirst);
    void walk(double x1, double y1, double x2, double y2, LineSink *sink, bool skipFirst);
    void emit(int x, int y, int level, int color, LineSink *sink);

    int left, top, right, bottom;
    bool antiAlias;
};
