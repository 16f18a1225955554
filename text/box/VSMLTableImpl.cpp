#include "text/box/VSMLTableImpl.h"

#include <algorithm>

#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "foundation/Constants.h"
#include "text/box/TextBoxImpl2.h"

VSMLTableImpl::VSMLTableImpl(BoxContainer *container, int c, int r)
    : cols(std::min(std::max(c, 0), kMaxCount)),
      rows(std::min(std::max(r, 0), kMaxCount)),
      x(0),
      y(0),
      alignment(kTopLeft),
      style(new TextBoxImpl(container)),
      laidOut(false),
      left(0),
      top(0),
      width(0),
      height(0) {
    if (cols == 0 || rows == 0) cols = rows = 0;
    // A plain grid: lines between the cells, texts on the left.
    style->setBackground(kTransparent, kLineColor, 0);
    style->setAlignment(kLeft);
    for (int i = 0; i < cols; ++i) colStyles.push_back(new TextBoxImpl2(container, style));
    for (int i = 0; i < rows * cols; ++i)
        cells.push_back(new TextBoxImpl2(container, colStyles[i % cols]));
}

VSMLTableImpl::~VSMLTableImpl() {
    for (TextBoxImpl2 *cell : cells) cell->release();
    for (TextBoxImpl2 *s : colStyles) s->release();
    style->release();
}

void VSMLTableImpl::setPos(int px, int py, int align) {
    x = px;
    y = py;
    alignment = align;
}

TextBox *VSMLTableImpl::getStyle() {
    return style;
}

TextBox *VSMLTableImpl::getColStyle(int col) {
    return col >= 0 && col < cols ? colStyles[col] : nullptr;
}

TextBox *VSMLTableImpl::getCell(int col, int row) {
    return col >= 0 && col < cols && row >= 0 && row < rows ? cellAt(col, row) : nullptr;
}

TextBox *VSMLTableImpl::setText(int col, int row, const char *text) {
    TextBox *cell = getCell(col, row);
    if (cell) cell->setText(text);
    return cell;
}

void VSMLTableImpl::layout(DrawArea *d) {
    if (laidOut || !d) return;
    laidOut = true;
    std::vector<int> colWidth(cols, 0), rowHeight(rows, 0);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c) {
            TextBoxImpl2 *cell = cellAt(c, r);
            cell->setPos(0, 0);
            cell->layout(d);
            colWidth[c] = std::max(colWidth[c], cell->getWidth());
            rowHeight[r] = std::max(rowHeight[r], cell->getHeight());
        }
    // Neighbouring cells share their border line; an empty column keeps a pixel.
    for (int &w : colWidth) w = std::max(w, 1);
    for (int &h : rowHeight) h = std::max(h, 1);
    width = height = 0;
    for (int w : colWidth) width += w - 1;
    for (int h : rowHeight) height += h - 1;
    width = cols ? width + 1 : 0;
    height = rows ? height + 1 : 0;
    left = x - DrawArea::alignX(width, alignment);
    top = y - DrawArea::alignY(height, alignment);
    int cellTop = top;
    for (int r = 0; r < rows; ++r) {
        int cellLeft = left;
        for (int c = 0; c < cols; ++c) {
            TextBoxImpl2 *cell = cellAt(c, r);
            cell->setPos(cellLeft, cellTop);
            cell->setSize(colWidth[c], rowHeight[r]);
            cellLeft += colWidth[c] - 1;
        }
        cellTop += rowHeight[r] - 1;
    }
}

void VSMLTableImpl::paint(DrawArea *d) {
    layout(d);
    for (TextBoxImpl2 *cell : cells) cell->paint(d);
}
