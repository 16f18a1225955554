#include "chart/axis/paint/TickStyle.h"

#include "draw/pixel/ColorWords.h"

void TickStyle::setLength(int major) {
    majorLength = major;
    // Half, away from zero, within an int at both ends.
    long long m = major;
    minorLength = (int)(m >= 0 ? (m + 1) / 2 : (m - 1) / 2);
}

void TickStyle::setLength(int major, int minor) {
    majorLength = major;
    minorLength = minor;
}

void TickStyle::setColor(int major, int minor) {
    majorColor = major;
    minorColor = minor;
}

void TickStyle::setWidth(int major, int minor) {
    majorWidth = major;
    minorWidth = minor;
}

int TickStyle::getColor(bool minor) const {
    return minor && minorColor != -1 ? minorColor : majorColor;
}

int TickStyle::getWidth(bool minor) const {
    return minor && minorWidth != -1 ? minorWidth : majorWidth;
}

bool TickStyle::isDrawn(bool minor) const {
    return getLength(minor) != 0 && getColor(minor) != kTransparent && getWidth(minor) != 0;
}
