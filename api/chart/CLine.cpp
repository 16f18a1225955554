#include "api/chart/CLine.h"

#include "api/chart/ChartHandles.h"
#include "chart/base/Line.h"

using vistrel_api::E;
using vistrel_api::H;

CDrawObj *CLine_toDrawObj(CLine *l) {
    return l ? H(static_cast<DrawObj *>(E(l))) : nullptr;
}
void CLine_setPos(CLine *l, int x1, int y1, int x2, int y2) {
    if (l) E(l)->setPos(x1, y1, x2, y2);
}
void CLine_setColor(CLine *l, int color) {
    if (l) E(l)->setColor(color);
}
void CLine_setWidth(CLine *l, int lineWidth) {
    if (l) E(l)->setWidth(lineWidth);
}
