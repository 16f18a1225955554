#pragma once

#include "api/chart/CLine.h"
#include "host/abc/chart/DrawObj.h"

namespace abc {

// A free line on a chart.
class VSLine : public DrawObj {
public:
    explicit VSLine(CLine *handle) : DrawObj(CLine_toDrawObj(handle)), line(handle) {}

    CLine *getHandle() const { return line; }
    void setPos(int x1, int y1, int x2, int y2) { CLine_setPos(line, x1, y1, x2, y2); }
    void setColor(int color) { CLine_setColor(line, color); }
    void setWidth(int lineWidth) { CLine_setWidth(line, lineWidth); }

private:
    CLine *line;
};

}  // namespace abc
