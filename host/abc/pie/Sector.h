#pragma once

#include "api/pie/CSector.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/VSObject.h"
#include "host/abc/chart/TextBox.h"

namespace abc {

// One sector of a pie.  The wrapper belongs to its chart's; the wrapper of its
// label box to it.
class Sector : public VSObject, public GarbageContainer {
public:
    explicit Sector(CSector *handle) : handle(handle) {}

    CSector *getHandle() const { return handle; }
    void setStyle(int shadingMethod, int edgeColor, int edgeWidth) {
        CSector_setStyle(handle, shadingMethod, edgeColor, edgeWidth);
    }
    void setLabelFormat(const char *formatString) { CSector_setLabelFormat(handle, formatString); }
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) {
        return keepOnce(CSector_setLabelStyle(handle, font, fontSize, fontColor),
                        &TextBox::getTextBoxHandle);
    }
    void setExplode(int distance) { CSector_setExplode(handle, distance); }
    void setLabelPos(int pos, int joinLineColor) {
        CSector_setLabelPos(handle, pos, joinLineColor);
    }
    void setLabelLayout(int layoutMethod, int pos) {
        CSector_setLabelLayout(handle, layoutMethod, pos);
    }
    void setJoinLine(int joinLineColor, int joinLineWidth) {
        CSector_setJoinLine(handle, joinLineColor, joinLineWidth);
    }
    void setColor(int color, int edgeColor, int joinLineColor) {
        CSector_setColor(handle, color, edgeColor, joinLineColor);
    }
    const char *getImageCoor(int offsetX, int offsetY) {
        return CSector_getImageCoor(handle, offsetX, offsetY);
    }
    const char *getLabelCoor(int offsetX, int offsetY) {
        return CSector_getLabelCoor(handle, offsetX, offsetY);
    }

private:
    CSector *handle;
};

}  // namespace abc
