#pragma once

#include "text/box/TextBox.h"

class DrawArea;

// The keys of a chart: each a small icon (a colour patch, a line, a symbol)
// with a text.  Its text is the template of the key texts.  Keys flow in rows,
// or stand in a grid of columns.
class LegendBox : public virtual TextBox {
public:
    // A key with a colour patch, or a line when lineWidth is positive and line
    // keys are on; icon, when given, is drawn instead of the patch.
    virtual void addKey(const char *text, int color, int lineWidth, DrawArea *icon) = 0;
    // The same key, placed at position pos among the others.
    virtual void addKey2(int pos, const char *text, int color, int lineWidth, DrawArea *icon) = 0;
    // A text without a key.
    virtual void addText(const char *text) = 0;
    virtual void addText2(int pos, const char *text) = 0;
    // 0 lets keys flow in rows; a positive count makes a grid of that many
    // columns; a negative one a grid with as many columns as fit.
    virtual void setCols(int cols) = 0;
    virtual void setReverse(bool reverse) = 0;
    // Keys that have a colour and a line width show as a line.
    virtual void setLineStyleKey(bool lineStyle) = 0;
    // -1 leaves a value automatic.
    virtual void setKeySize(int width, int height, int gap) = 0;
    virtual void setKeySpacing(int keySpacing, int lineSpacing) = 0;
    virtual void setKeyBorder(int edgeColor, int raisedEffect) = 0;
    // The image-map shape of key i, in the order shown, after layout.
    virtual const char *getImageCoor2(int dataItem, int offsetX, int offsetY) = 0;
    virtual const char *getHTMLImageMap(const char *url, const char *queryFormat,
                                        const char *extraAttr, int offsetX, int offsetY) = 0;
};
