#include "draw/raster/scan/ActiveEdgeFiller.h"

#include <algorithm>

#include "draw/raster/scan/AAEdge.h"
#include "draw/raster/scan/SpanPainter.h"

ActiveEdgeFiller::ActiveEdgeFiller(const std::vector<AAEdge *> &edges) : edges(edges) {
    for (int i = 0; i < (int)edges.size(); ++i) byTop.push_back(i);
    std::stable_sort(byTop.begin(), byTop.end(),
                     [&](int a, int b) { return edges[a]->minY() < edges[b]->minY(); });
}

void ActiveEdgeFiller::fill(SpanPainter &painter, int firstRow, int lastRow) {
    std::vector<int> active;
    std::vector<SpanPainter::RowSpan> spans;
    size_t next = 0;
    for (int y = firstRow; y <= lastRow; ++y) {
        while (next < byTop.size() && edges[byTop[next]]->minY() <= y)
            active.push_back(byTop[next++]);
        size_t kept = 0;
        spans.clear();
        for (size_t i = 0; i < active.size(); ++i) {
            const AAEdge *e = edges[active[i]];
            if (e->maxY() <= y) continue;
            active[kept++] = active[i];
            if (e->crosses(y)) spans.push_back({e->spanAt(y), active[i]});
        }
        active.resize(kept);
        if (spans.size() >= 2) painter.paintRow(spans, y);
        if (active.empty() && next >= byTop.size()) break;
    }
}
