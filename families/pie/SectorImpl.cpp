#include "families/pie/SectorImpl.h"

#include <cmath>
#include <cstdio>
#include <vector>

#include "draw/pixel/ColorWords.h"
#include "families/pie/PieSettings.h"
#include "families/pie/shape/SectorOutline.h"
#include "foundation/Constants.h"
#include "text/box/TextBoxImpl2.h"

namespace {

// The bit of a label position that selects side layout; the low bits are the position.
const int kSideLayoutBit = 0x8000;
const int kSidePositionMask = 0x7FFF;
const char *const kCircleFormat = "&label&\n&percent&%";
const char *const kSideFormat = "{label} ({percent}%)";

int ownOr(int own, int chart) {
    return own != SectorImpl::kUnset ? own : chart;
}

}  // namespace

SectorImpl::SectorImpl(BoxContainer *chart, TextBoxImpl *labelPrototype, int index)
    : index(index),
      value(kNoValue),
      fraction(0),
      color(kDataColor + index),
      edgeColor(kUnset),
      shading(kUnset),
      edgeWidth(kUnset),
      explode(0),
      labelPos(kUnset),
      labelLayout(kUnset),
      joinLineColor(kUnset),
      joinLineWidth(kUnset),
      label(chart, labelPrototype),
      laidOut(false) {}

void SectorImpl::setData(double v, const char *text) {
    value = std::isfinite(v) ? v : kNoValue;
    labelText = text ? text : "";
}

bool SectorImpl::hasValue() const {
    return value != kNoValue;
}

void SectorImpl::setStyle(int shadingMethod, int edge, int width) {
    shading = shadingMethod;
    if (edge != -1) edgeColor = edge;
    if (width != -1) edgeWidth = width;
}

void SectorImpl::setLabelFormat(const char *formatString) {
    labelFormat = formatString ? formatString : "";
}

TextBox *SectorImpl::setLabelStyle(const char *font, double fontSize, int fontColor) {
    TextBoxImpl2 *box = label.getBox();
    box->setFontStyle(font, 0);
    box->setFontSize(fontSize, 0);
    box->setFontColor(fontColor);
    return box;
}

void SectorImpl::setExplode(int distance) {
    explode = distance;
}

void SectorImpl::setLabelPos(int pos, int joinColor) {
    bool side = pos >= kSideLayoutBit;
    labelLayout = side ? kSideLayout : kCircleLayout;
    labelPos = side ? pos & kSidePositionMask : pos;
    if (joinColor != -1) joinLineColor = joinColor;
}

void SectorImpl::setLabelLayout(int layoutMethod, int pos) {
    labelLayout = layoutMethod;
    if (pos != -1) labelPos = pos;
}

void SectorImpl::setJoinLine(int joinColor, int width) {
    joinLineColor = joinColor;
    joinLineWidth = width;
}

void SectorImpl::setColor(int c, int edge, int joinColor) {
    color = c;
    if (edge != -1) edgeColor = edge;
    if (joinColor != -1) joinLineColor = joinColor;
}

void SectorImpl::resolve(const PieSettings &pie, int radius) {
    look.color = color;
    look.sideLayout = ownOr(labelLayout, pie.labelLayout) == kSideLayout;
    look.labelPos = ownOr(labelPos, pie.labelPos);
    if (look.labelPos == -1) look.labelPos = look.sideLayout ? (int)(radius * 0.35) : radius / 10;
    look.joinLineColor = ownOr(joinLineColor, pie.joinLineColor);
    if (look.joinLineColor == -1) look.joinLineColor = look.sideLayout ? kLineColor : kTransparent;
    look.joinLineWidth = ownOr(joinLineWidth, pie.joinLineWidth);
    look.edgeColor = ownOr(edgeColor, pie.edgeColor);
    if (look.edgeColor == -1) look.edgeColor = kSameAsMainColor;
    look.edgeWidth = ownOr(edgeWidth, pie.edgeWidth);
    look.shading = ownOr(shading, pie.shadingMethod);
    look.labelFormat = !labelFormat.empty()       ? labelFormat
                       : !pie.labelFormat.empty() ? pie.labelFormat
                       : look.sideLayout          ? kSideFormat
                                                  : kCircleFormat;
}

const char *SectorImpl::getImageCoor(int offsetX, int offsetY) {
    imageCoor.clear();
    if (!laidOut || !isDrawn()) return imageCoor.c_str();
    const SectorGeometry &g = geometry;
    std::vector<double> x, y;
    SectorOutline::closed(g, g.rx, g.ry, g.innerRx, g.innerRy, x, y);
    imageCoor = "shape=\"poly\" coords=\"";
    char point[48];
    for (size_t i = 0; i < x.size(); ++i) {
        snprintf(point, sizeof(point), "%s%lld,%lld", i ? "," : "",
                 (long long)PieAngle::round(x[i]) + offsetX,
                 (long long)PieAngle::round(y[i]) + offsetY);
        imageCoor += point;
    }
    imageCoor += "\"";
    return imageCoor.c_str();
}

const char *SectorImpl::getLabelCoor(int offsetX, int offsetY) {
    return laidOut ? label.getImageCoor(offsetX, offsetY) : "";
}
