#pragma once

#include "foundation/DrawObj.h"

class TextBox;

// A grid of text boxes.  Cells take their style from their column's style box,
// and columns from the table's; a column is as wide as its widest cell and a
// row as high as its highest.
class VSMLTable : public DrawObj {
public:
    // The point of the whole grid that the alignment names lies at (x, y).
    virtual void setPos(int x, int y, int alignment) = 0;
    virtual TextBox *getStyle() = 0;
    // Null out of range.
    virtual TextBox *getColStyle(int col) = 0;
    virtual TextBox *getCell(int col, int row) = 0;
    // Sets the cell's text and returns the cell; null out of range.
    virtual TextBox *setText(int col, int row, const char *text) = 0;
    virtual int getColCount() const = 0;
    virtual int getRowCount() const = 0;
    // The grid's place and size, known once the table is laid out.
    virtual int getLeftX() const = 0;
    virtual int getTopY() const = 0;
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
};
