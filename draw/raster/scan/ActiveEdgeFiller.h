#pragma once

#include <vector>

class AAEdge;
class SpanPainter;

// Fills a shape of many edges: edges enter a list when the rows reach their top
// and leave it below their bottom, so each row looks only at the edges that can
// cross it.
class ActiveEdgeFiller {
public:
    ActiveEdgeFiller(const std::vector<AAEdge *> &edges);
    void fill(SpanPainter &painter, int firstRow, int lastRow);

private:
    const std::vector<AAEdge *> &edges;
    std::vector<int> byTop;
};
