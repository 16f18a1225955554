#pragma once

#include "api/chart/CBox.h"
#include "host/abc/chart/DrawObj.h"

namespace abc {

class Box : public DrawObj {
public:
    explicit Box(CBox *handle) : DrawObj(CBox_toDrawObj(handle)), box(handle) {}

    CBox *getBoxHandle() const { return box; }
    void setPos(int x, int y) { CBox_setPos(box, x, y); }
    void setSize(int width, int height) { CBox_setSize(box, width, height); }
    void setBackground(int color, int edgeColor, int raisedEffect) {
        CBox_setBackground(box, color, edgeColor, raisedEffect);
    }
    void setRoundedCorners(int r1, int r2, int r3, int r4) {
        CBox_setRoundedCorners(box, r1, r2, r3, r4);
    }
    const char *getImageCoor(int offsetX, int offsetY) {
        return CBox_getImageCoor(box, offsetX, offsetY);
    }
    int getWidth() { return CBox_getWidth(box); }
    int getHeight() { return CBox_getHeight(box); }
    int getLeftX() { return CBox_getLeftX(box); }
    int getTopY() { return CBox_getTopY(box); }

private:
    CBox *box;
};

}  // namespace abc
