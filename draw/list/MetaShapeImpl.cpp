#include "draw/list/MetaShapeImpl.h"

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaRecordCall.h"

// Items follow the path-type table: the doubles, the edge colour, then the
// flag where the format has one.
void MetaShapeImpl::addItem(unsigned type, const double *v, int color, bool flag) {
    pathWords.push_back((int)type);
    int numbers = 0;
    for (const char *letter = findMetaPathType(type)->format; *letter; ++letter) {
        if (*letter == 'd') putSlots(pathWords, v[numbers++]);
        if (*letter == 'x') putSlots(pathWords, list->registerColor(color));
        if (*letter == 'b') putSlots(pathWords, flag);
    }
}

void MetaShapeImpl::addLine(int color, bool flag, double x1, double y1, double x2, double y2) {
    const double v[] = {x1, y1, x2, y2};
    addItem(kPathLine, v, color, flag);
}

void MetaShapeImpl::addArc(int color, double cx, double cy, double rx, double ry, double x1,
                           double y1, double x2, double y2) {
    const double v[] = {cx, cy, rx, ry, x1, y1, x2, y2};
    addItem(kPathArc, v, color, false);
}

void MetaShapeImpl::addArc2(int color, bool flag, double cx, double cy, double rx, double ry,
                            double a1, double a2, double x1, double y1, double x2, double y2) {
    const double v[] = {cx, cy, rx, ry, a1, a2, x1, y1, x2, y2};
    addItem(kPathArc2, v, color, flag);
}

void MetaShapeImpl::paint(int fillColor, bool inset, bool keepOutline) {
    list->writeShape(fillColor, inset, keepOutline, pathWords);
}
