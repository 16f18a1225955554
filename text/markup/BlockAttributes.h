#pragma once

#include "text/markup/VSMLTag.h"

// The attributes of a block or image tag, and those of the root text.
class BlockAttributes {
public:
    // Alignment codes, one list for halign and valign.
    enum {
        kBaseline = 0,
        kTop = 1,
        kBottom = 2,
        kMiddle = 3,
        kAbsMiddle = 4,
        kLeft = 5,
        kRight = 6,
    };

    BlockAttributes();
    // Reads the pairs of a tag over the current values.
    void apply(const VSMLTag &tag);
    static int alignCode(const std::wstring &word);
    static double normaliseAngle(double angle);

    // The width lines wrap at, or -1.
    int getWrapWidth() const { return maxWidth > 0 ? maxWidth : width; }
    bool hasBox() const;

    int valign;
    int halign;
    int width;
    int height;
    int maxWidth;
    int truncate;
    double angle;
    int bgColor;
    int edgeColor;
    int raisedEffect;
    int roundedCorners[4];
    int margin[4];  // left, right, top, bottom
    double lineSpacing;
    int direction;  // 0 left to right, 1 right to left, -1 from the text
    std::wstring image;

private:
    static void readFour(const std::wstring &value, int out[4]);
};
