#pragma once

#include "draw/pixel/ColorWords.h"

// Length, colour and width of an axis's major and minor tick marks.  A minor
// colour or width of -1 takes the major one.  A positive length points out of
// the plot, a negative one into it.
class TickStyle {
public:
    // The minor length becomes half the major, rounded away from zero.
    void setLength(int major);
    void setLength(int major, int minor);
    void setColor(int major, int minor);
    void setWidth(int major, int minor);

    int getLength(bool minor) const { return minor ? minorLength : majorLength; }
    int getColor(bool minor) const;
    int getWidth(bool minor) const;
    int getMajorColor() const { return majorColor; }
    int getMinorColor() const { return minorColor; }
    // A tick of length 0, of the transparent colour or of width 0 is not drawn.
    bool isDrawn(bool minor) const;

private:
    int majorLength = 4;
    int minorLength = 3;
    int majorColor = kLineColor;
    int minorColor = -1;
    int majorWidth = 1;
    int minorWidth = -1;
};
