#include "api/chart/CBox.h"

#include "api/chart/ChartHandles.h"
#include "text/box/Box.h"

using vistrel_api::E;
using vistrel_api::H;

CDrawObj *CBox_toDrawObj(CBox *b) {
    return b ? H(static_cast<DrawObj *>(E(b))) : nullptr;
}
void CBox_setPos(CBox *b, int x, int y) {
    if (b) E(b)->setPos(x, y);
}
void CBox_setSize(CBox *b, int width, int height) {
    if (b) E(b)->setSize(width, height);
}
void CBox_setBackground(CBox *b, int color, int edgeColor, int raisedEffect) {
    if (b) E(b)->setBackground(color, edgeColor, raisedEffect);
}
void CBox_setRoundedCorners(CBox *b, int r1, int r2, int r3, int r4) {
    if (b) E(b)->setRoundedCorners(r1, r2, r3, r4);
}
const char *CBox_getImageCoor(CBox *b, int offsetX, int offsetY) {
    return b ? E(b)->getImageCoor(offsetX, offsetY) : nullptr;
}
int CBox_getWidth(CBox *b) {
    return b ? E(b)->getWidth() : 0;
}
int CBox_getHeight(CBox *b) {
    return b ? E(b)->getHeight() : 0;
}
int CBox_getLeftX(CBox *b) {
    return b ? E(b)->getLeftX() : 0;
}
int CBox_getTopY(CBox *b) {
    return b ? E(b)->getTopY() : 0;
}
