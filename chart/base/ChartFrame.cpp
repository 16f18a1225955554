#include "chart/base/ChartFrame.h"

#include <algorithm>

#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"

namespace {

// Each corner's horizontal and vertical neighbour.
const int kHorizontalNeighbour[4] = {1, 0, 3, 2};
const int kVerticalNeighbour[4] = {3, 2, 1, 0};

bool anyRadius(const int radius[4]) {
    return radius[0] > 0 || radius[1] > 0 || radius[2] > 0 || radius[3] > 0;
}

void outline(DrawArea *d, int x1, int y1, int x2, int y2, const int radius[4], int color) {
    if (d->getARGBColor(color) == kTransparent) return;
    const int edges[4] = {color, color, color, color};
    d->roundedRect(x1, y1, x2, y2, radius, edges, kTransparent);
}

}  // namespace

void ChartFrame::limitRadii(int radius[4], int width, int height) {
    for (int i = 0; i < 4; ++i) {
        int limitX = radius[kHorizontalNeighbour[i]] > 0 ? width / 2 : width;
        int limitY = radius[kVerticalNeighbour[i]] > 0 ? height / 2 : height;
        radius[i] = std::min(radius[i], std::min(limitX, limitY));
        if (radius[i] < 1) radius[i] = 0;
    }
}

void ChartFrame::paintThickFrame(DrawArea *d, int width, int height, const int radius[4],
                                 int thickness, int frameColor, int outerEdgeColor,
                                 int innerEdgeColor) {
    d->frameRect(0, 0, width - 1, height - 1, radius, thickness, frameColor);
    outline(d, 0, 0, width - 1, height - 1, radius, outerEdgeColor);
    // The inner edge lies on the frame's innermost pixels.
    int inset = thickness - 1, inner[4];
    for (int i = 0; i < 4; ++i) inner[i] = std::max(radius[i] - inset, 0);
    if (2 * thickness < width && 2 * thickness < height)
        outline(d, inset, inset, width - 1 - inset, height - 1 - inset, inner, innerEdgeColor);
}

void ChartFrame::paintEdge(DrawArea *d, int width, int height, const int radius[4], int edgeColor,
                           int raisedEffect) {
    if (raisedEffect == 0 && d->getARGBColor(edgeColor) == kTransparent) return;
    if (!anyRadius(radius)) {
        d->rect(0, 0, width - 1, height - 1, edgeColor, kTransparent, raisedEffect);
        return;
    }
    // The rim's square corners fall outside the rounding, which clears them.
    if (raisedEffect != 0)
        d->rect(0, 0, width - 1, height - 1, kTransparent, kTransparent, raisedEffect);
    outline(d, 0, 0, width - 1, height - 1, radius, edgeColor);
}
