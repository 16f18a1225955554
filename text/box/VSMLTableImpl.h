#pragma once

#include <cstddef>
#include <vector>

#include "text/box/VSMLTable.h"

class BoxContainer;
class DrawArea;
class TextBoxImpl;
class TextBoxImpl2;

class VSMLTableImpl : public VSMLTable {
public:
    // Counts are limited to kMaxCount each; negative ones make an empty table.
    static constexpr int kMaxCount = 1000;

    VSMLTableImpl(BoxContainer *container, int cols, int rows);
    ~VSMLTableImpl() override;
    VSMLTableImpl(const VSMLTableImpl &) = delete;
    VSMLTableImpl &operator=(const VSMLTableImpl &) = delete;

    void release() override { delete this; }
    void paint(DrawArea *d) override;

    void setPos(int x, int y, int alignment) override;
    TextBox *getStyle() override;
    TextBox *getColStyle(int col) override;
    TextBox *getCell(int col, int row) override;
    TextBox *setText(int col, int row, const char *text) override;
    int getColCount() const override { return cols; }
    int getRowCount() const override { return rows; }
    int getLeftX() const override { return left; }
    int getTopY() const override { return top; }
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }

    // Measures the cells and places them; runs once.
    void layout(DrawArea *d);

private:
    TextBoxImpl2 *cellAt(int col, int row) const { return cells[(size_t)row * cols + col]; }

    int cols;
    int rows;
    int x;
    int y;
    int alignment;
    TextBoxImpl *style;
    std::vector<TextBoxImpl2 *> colStyles;
    std::vector<TextBoxImpl2 *> cells;
    bool laidOut;
    int left;
    int top;
    int width;
    int height;
};
