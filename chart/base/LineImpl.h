#pragma once

#include "chart/base/Line.h"

class LineImpl : public Line {
public:
    LineImpl();

    void release() override { delete this; }
    void paint(DrawArea *d) override;
    void setPos(int x1, int y1, int x2, int y2) override;
    void setColor(int color) override { this->color = color; }
    void setWidth(int lineWidth) override { this->lineWidth = lineWidth; }

private:
    int x1;
    int y1;
    int x2;
    int y2;
    int color;
    int lineWidth;
};
