#include "text/box/BoxImpl.h"

#include <cstdio>

#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "text/box/BoxContainer.h"

namespace {

// The chart property holding the rounded frame's radius of each corner, in the
// order top-left, top-right, bottom-right, bottom-left.
const int kCornerProperty[4] = {0x100 + 7, 0x100 + 9, 0x100 + 3, 0x100 + 1};

}  // namespace

BoxImpl::BoxImpl(BoxContainer *container)
    : x(0),
      y(0),
      width(0),
      height(0),
      widthGiven(false),
      heightGiven(false),
      container(container),
      bgColor(kTransparent),
      edgeColor(kTransparent),
      raisedEffect(0),
      cornerRadius{-1, -1, -1, -1},
      styleSet(0) {}

void BoxImpl::setPos(int px, int py) {
    x = limit(px);
    y = limit(py);
}

void BoxImpl::setSize(int w, int h) {
    width = limit(w);
    height = limit(h);
    widthGiven = heightGiven = true;
}

void BoxImpl::setBackground(int color, int edge, int raised) {
    bgColor = color;
    edgeColor = edge == -1 ? kTransparent : edge;
    raisedEffect = raised;
    markSet(kBackgroundStyle);
}

void BoxImpl::setRoundedCorners(int r1, int r2, int r3, int r4) {
    cornerRadius[0] = r1;
    cornerRadius[1] = r2 == -1 ? r1 : r2;
    cornerRadius[2] = r3 == -1 ? r1 : r3;
    cornerRadius[3] = r4 == -1 ? r1 : r4;
    markSet(kCornerStyle);
}

void BoxImpl::copyBox(const BoxImpl &from) {
    x = from.x;
    y = from.y;
    width = from.width;
    height = from.height;
    widthGiven = from.widthGiven;
    heightGiven = from.heightGiven;
    bgColor = from.bgColor;
    edgeColor = from.edgeColor;
    raisedEffect = from.raisedEffect;
    for (int i = 0; i < 4; ++i) cornerRadius[i] = from.cornerRadius[i];
    copyStyles(from, kBackgroundStyle | kCornerStyle);
}

void BoxImpl::effectiveRadii(int px, int py, int radius[4]) const {
    const int *own = styleOf(kCornerStyle)->cornerRadius;
    bool touches[4] = {false, false, false, false};
    if (container) {
        int right = px + width, bottom = py + height;
        int cw = container->getWidth(), ch = container->getHeight();
        bool left = px <= 0, top = py <= 0, atRight = right >= cw, atBottom = bottom >= ch;
        touches[0] = left && top;
        touches[1] = atRight && top;
        touches[2] = atRight && atBottom;
        touches[3] = left && atBottom;
    }
    for (int i = 0; i < 4; ++i) {
        radius[i] = own[i];
        if (radius[i] >= 0) continue;
        radius[i] = touches[i] ? (int)container->getProperty(kCornerProperty[i]) : 0;
    }
}

void BoxImpl::paint(DrawArea *d, int offsetX, int offsetY) {
    if (d && width > 0 && height > 0) paintBox(d, x + offsetX, y + offsetY);
}

void BoxImpl::paintBox(DrawArea *d, int px, int py) {
    if (!d || width < 1 || height < 1) return;
    int fill = getBgColor(), edge = getEdgeColor(), raised = getRaisedEffect();
    if (raised == 0 && d->getARGBColor(fill) == kTransparent &&
        d->getARGBColor(edge) == kTransparent)
        return;
    int radius[4];
    effectiveRadii(px, py, radius);
    int x2 = px + width - 1, y2 = py + height - 1;
    if (radius[0] <= 0 && radius[1] <= 0 && radius[2] <= 0 && radius[3] <= 0) {
        d->rect(px, py, x2, y2, edge, fill, raised);
        return;
    }
    // A 3D edge eats into the corner: the curve starts one pixel further in.
    if (raised != 0 && !Chart::isFlatBorder(raised))
        for (int &r : radius) r += r > 0 ? 1 : 0;
    const int edges[4] = {edge, edge, edge, edge};
    d->roundedRect(px, py, x2, y2, radius, edges, fill);
}

std::vector<int> BoxImpl::getPreciseCoor(int offsetX, int offsetY) {
    int left = x + offsetX, top = y + offsetY;
    return {left, top, left + width - 1, top + height - 1};
}

const char *BoxImpl::getImageCoor(int offsetX, int offsetY) {
    std::vector<int> coords = getPreciseCoor(offsetX, offsetY);
    imageCoor = coords.size() == 4 ? "shape=\"rect\" coords=\"" : "shape=\"poly\" coords=\"";
    char number[16];
    for (size_t i = 0; i < coords.size(); ++i) {
        snprintf(number, sizeof(number), i ? ",%d" : "%d", coords[i]);
        imageCoor += number;
    }
    imageCoor += "\"";
    return imageCoor.c_str();
}
