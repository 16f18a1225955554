#pragma once

#include "text/box/Box.h"

// A box with a text in it: titles, labels and legends.  The text is a template
// with inline mark-up; its alignment places it in the box, or, in a box of no
// given size, puts that point of the text at the box's position.
class TextBox : public virtual Box {
public:
    virtual void setText(const char *text) = 0;
    virtual void setAlignment(int alignment) = 0;
    virtual void setFontStyle(const char *font, int fontIndex) = 0;
    // A fontWidth of 0 is the same as the height.
    virtual void setFontSize(double fontHeight, double fontWidth) = 0;
    virtual void setFontAngle(double angle, bool vertical) = 0;
    virtual void setFontColor(int color) = 0;
    // All four sides; -1 is automatic.
    virtual void setMargin(int margin) = 0;
    virtual void setMargin2(int leftMargin, int rightMargin, int topMargin, int bottomMargin) = 0;
    virtual void setWidth(int width) = 0;
    virtual void setHeight(int height) = 0;
    // The width at which the text wraps.
    virtual void setMaxWidth(int width) = 0;
    // Cuts the text with "..." after maxLines lines of at most maxWidth pixels.
    virtual void setTruncate(int maxWidth, int maxLines) = 0;
};
