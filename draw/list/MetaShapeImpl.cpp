#include "draw/list/MetaShapeImpl.h"

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaRecordArg.h"

// Items follow the path-type table: the doubles, the edge colour, then the
// flag where the format has one.
void MetaShapeImpl::addItem(unsigned type, const double *v, int count, int color, bool flag) {
    const MetaRecordInfo *info = findMetaPathType(type);
    RecordArg args[12];
    for (int i = 0; i < count; ++i) args[i] = RecordArg::number(v[i]);
    args[count] = RecordArg::word(list->registerColor(color));
    args[count + 1] = RecordArg::boolean(flag);
    int argCount = info->format[count + 1] == 'b' ? count + 2 : count + 1;
    pathWords.push_back((int)type);
    encodeRecordArgs(pathWords, info->format, args, argCount);
}

void MetaShapeImpl::addLine(int color, bool flag, double x1, double y1, double x2, double y2) {
    const double v[] = {x1, y1, x2, y2};
    addItem(kPathLine, v, 4, color, flag);
}

void MetaShapeImpl::addArc(int color, double cx, double cy, double rx, double ry, double x1,
                           double y1, double x2, double y2) {
    const double v[] = {cx, cy, rx, ry, x1, y1, x2, y2};
    addItem(kPathArc, v, 8, color, false);
}

void MetaShapeImpl::addArc2(int color, bool flag, double cx, double cy, double rx, double ry,
                            double a1, double a2, double x1, double y1, double x2, double y2) {
    const double v[] = {cx, cy, rx, ry, a1, a2, x1, y1, x2, y2};
    addItem(kPathArc2, v, 10, color, flag);
}

void MetaShapeImpl::paint(int fillColor, bool inset, bool keepOutline) {
    list->writeShape(fillColor, inset, keepOutline, pathWords);
}
