#pragma once

#include <vector>

#include "draw/list/MetaDraw.h"

class MetaDrawImpl;

// Collects path items in its own buffer; paint() writes them as one Shape
// record into the list that made the shape.
class MetaShapeImpl : public MetaDraw::MetaShape {
public:
    explicit MetaShapeImpl(MetaDrawImpl *list) : list(list) {}
    void reset() override { pathWords.clear(); }
    void addLine(int color, bool flag, double x1, double y1, double x2, double y2) override;
    void addArc(int color, double cx, double cy, double rx, double ry, double x1, double y1,
                double x2, double y2) override;
    void addArc2(int color, bool flag, double cx, double cy, double rx, double ry, double a1,
                 double a2, double x1, double y1, double x2, double y2) override;
    void paint(int fillColor, bool inset, bool keepOutline) override;
    void destroy() override { delete this; }

private:
    void addItem(unsigned type, const double *v, int color, bool flag);

    MetaDrawImpl *list;
    std::vector<int> pathWords;
};
