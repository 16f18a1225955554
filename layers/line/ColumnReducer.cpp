#include "layers/line/ColumnReducer.h"

#include <utility>

#include "foundation/Constants.h"
#include "layers/line/MultiLine.h"

ColumnReducer::ColumnReducer(MultiLine &line)
    : line(line), open(false), column(0), order(0), storedOrder(-1), first(), high(), low(),
      last() {}

void ColumnReducer::startColumn(long long c, double x, double y, int index) {
    flush();
    open = true;
    column = c;
    first = high = low = last = Point{x, y, index, order};
    // The first point joins the column to the one before, or starts a run.
    store(first);
}

void ColumnReducer::flush() {
    if (!open) return;
    Point a = high, b = low;
    if (b.order < a.order) std::swap(a, b);
    store(a);
    store(b);
    store(last);
}

void ColumnReducer::store(const Point &p) {
    if (p.order == storedOrder) return;
    storedOrder = p.order;
    line.setData(p.x, p.y, p.index);
}

void ColumnReducer::gap() {
    flush();
    open = false;
    line.setData(kNoValue, kNoValue, -1);
}

void ColumnReducer::finish() {
    flush();
    open = false;
}
