#include "text/box/TextBoxImpl.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/ColorEffects.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "draw/canvas/RaisedEffect.h"
#include "foundation/Constants.h"
#include "text/layout/TTFBlocks.h"
#include "text/layout/TTFText.h"

namespace {

const int kUnlimited = 0x7FFFFFFF;
// Margin indices: left, right, top, bottom.
enum { kLeftMargin, kRightMargin, kTopMargin, kBottomMargin };
const int kMarginOfSide[4] = {kTopMargin, kRightMargin, kBottomMargin, kLeftMargin};

// The width of a box's border that margins make room for.
int edgeWidth(int raisedEffect, int width, int height) {
    if (raisedEffect == 0) return 0;
    if (Chart::isFlatBorder(raisedEffect)) {
        int n = (raisedEffect < 0 ? -(long long)raisedEffect : raisedEffect) & 0xFFF;
        return std::max(n - 1, 0);
    }
    return RaisedEffect(raisedEffect).thickness(width, height);
}

}  // namespace

TextBoxImpl::TextBoxImpl(BoxContainer *container)
    : BoxImpl(container),
      fontIndex(0),
      fontHeight(8),
      fontWidth(0),
      fontAngle(0),
      vertical(false),
      fontColor(kTextColor),
      alignment(kCenter),
      maxWidth(0),
      truncateWidth(0),
      truncateLines(kUnlimited),
      margins{-1, -1, -1, -1},
      anchored(false),
      textObject(nullptr),
      usedMargin{0, 0, 0, 0} {}

TextBoxImpl::~TextBoxImpl() {
    resetLayout();
}

void TextBoxImpl::resetLayout() {
    if (textObject) textObject->destroy();
    textObject = nullptr;
}

void TextBoxImpl::setText(const char *t) {
    text = t ? t : "";
    markSet(kTextStyle);
}

void TextBoxImpl::setAlignment(int a) {
    alignment = a;
    markSet(kAlignmentStyle);
}

void TextBoxImpl::setFontStyle(const char *f, int index) {
    font = f ? f : "";
    fontIndex = index;
    markSet(kFontStyle);
}

void TextBoxImpl::setFontSize(double h, double w) {
    fontHeight = h;
    fontWidth = w;
    markSet(kFontSizeStyle);
}

void TextBoxImpl::setFontAngle(double angle, bool v) {
    fontAngle = std::isfinite(angle) ? angle : 0;
    vertical = v;
    markSet(kFontAngleStyle);
}

void TextBoxImpl::setFontColor(int color) {
    fontColor = color;
    markSet(kFontColorStyle);
}

void TextBoxImpl::setMargin(int m) {
    setMargin2(m, m, m, m);
}

void TextBoxImpl::setMargin2(int left, int right, int top, int bottom) {
    margins[kLeftMargin] = limit(left);
    margins[kRightMargin] = limit(right);
    margins[kTopMargin] = limit(top);
    margins[kBottomMargin] = limit(bottom);
    markSet(kMarginStyle);
}

void TextBoxImpl::setWidth(int w) {
    width = limit(w);
    widthGiven = true;
}

void TextBoxImpl::setHeight(int h) {
    height = limit(h);
    heightGiven = true;
}

void TextBoxImpl::setMaxWidth(int w) {
    maxWidth = limit(w);
    markSet(kWrapStyle);
}

void TextBoxImpl::setTruncate(int w, int lines) {
    truncateWidth = limit(w);
    truncateLines = lines;
    markSet(kTruncateStyle);
}

double TextBoxImpl::getFontWidth() const {
    const TextBoxImpl *s = textOf(kFontSizeStyle);
    return s->fontWidth > 0 ? s->fontWidth : s->fontHeight;
}

void TextBoxImpl::copyText(const TextBoxImpl &from) {
    text = from.text;
    font = from.font;
    fontIndex = from.fontIndex;
    fontHeight = from.fontHeight;
    fontWidth = from.fontWidth;
    fontAngle = from.fontAngle;
    vertical = from.vertical;
    fontColor = from.fontColor;
    alignment = from.alignment;
    maxWidth = from.maxWidth;
    truncateWidth = from.truncateWidth;
    truncateLines = from.truncateLines;
    std::copy(from.margins, from.margins + 4, margins);
    anchored = from.anchored;
    copyStyles(from, kTextStyle | kFontStyle | kFontSizeStyle | kFontAngleStyle | kFontColorStyle |
                         kAlignmentStyle | kMarginStyle | kWrapStyle | kTruncateStyle);
}

int TextBoxImpl::getAdjustedMargin(int margin, int side) {
    if (margin >= 0) return margin;
    int e = edgeWidth(getRaisedEffect(), width, height);
    int heightPart = (int)getFontHeight(), widthPart = (int)getFontWidth();
    double angle = getFontAngle();
    double offSquare = std::fmod(std::fabs(angle), 90);
    if (offSquare > 15 && offSquare < 75) return (heightPart + 4) / 6 + 2 + e;
    // q is the side of the unrotated text that faces this side of the box.
    int q = (int)(((long long)std::floor(angle / 90 + 0.5) + side) % 4);
    if (q < 0) q += 4;
    switch (q) {
        case 0:
            return (widthPart + 4) / 6 + 2 + e;
        case 1:
            return (heightPart + 1) / 2 + 2 + e;
        case 2:
            return (widthPart + 4) / 6 + 1 + e;
        default:
            return (heightPart + 1) / 2 + 3 + e;
    }
}

int TextBoxImpl::wrapWidth() const {
    int lr = usedMargin[kLeftMargin] + usedMargin[kRightMargin];
    int wrap = kUnlimited;
    if (getMaxWidth() > 0)
        wrap = getMaxWidth() - lr;
    else if (widthGiven && width - lr > 0)
        wrap = width - lr;
    return std::max(wrap, 1);
}

void TextBoxImpl::layout(DrawArea *d) {
    if (textObject || !d || getText().empty()) return;
    for (int side = 0; side < 4; ++side) {
        int index = kMarginOfSide[side];
        usedMargin[index] = getAdjustedMargin(getMarginSetting(index), side);
    }
    int wrap = wrapWidth(), lines = 0;
    if (getTruncateWidth() > 0) {
        wrap = std::min(wrap, getTruncateWidth());
        lines = getTruncateLines();
    }
    const TextBoxImpl *size = textOf(kFontSizeStyle);
    textObject = TTFText::create(d, getText().c_str(), getFont().c_str(), getFontIndex(),
                                 size->fontHeight, size->fontWidth, getFontAngle(), isVertical(),
                                 d->getTextAAMode(), wrap == kUnlimited ? 0 : wrap, lines, 0);
    if (textObject) placeByAlignment(textObject->getWidth(), textObject->getHeight(), usedMargin);
}

void TextBoxImpl::placeByAlignment(int contentWidth, int contentHeight, const int margin[4]) {
    int a = getAlignment();
    if (!widthGiven) width = contentWidth + margin[kLeftMargin] + margin[kRightMargin];
    if (!widthGiven || anchored) {
        if (isRightAlignment(a))
            x = x + 1 - width;
        else if (isCenterAlignment(a))
            x = x - margin[kLeftMargin] - contentWidth / 2;
    }
    if (!heightGiven) height = contentHeight + margin[kTopMargin] + margin[kBottomMargin];
    if (!heightGiven || anchored) {
        if (a >= kBottomLeft && a <= kBottomRight)
            y = y + 1 - height;
        else if (a >= kLeft && a <= kRight)
            y = y - margin[kTopMargin] - contentHeight / 2;
    }
}

void TextBoxImpl::textOrigin(int px, int py, int *tx, int *ty) const {
    int a = getAlignment();
    int spareX =
        width - usedMargin[kLeftMargin] - usedMargin[kRightMargin] - textObject->getWidth();
    int spareY =
        height - usedMargin[kTopMargin] - usedMargin[kBottomMargin] - textObject->getHeight();
    *tx = px + usedMargin[kLeftMargin] + DrawArea::alignX(spareX, a);
    *ty = py + usedMargin[kTopMargin] + DrawArea::alignY(spareY, a);
}

void TextBoxImpl::paint(DrawArea *d, int offsetX, int offsetY) {
    if (!d) return;
    layout(d);
    int px = x + offsetX, py = y + offsetY;
    if (!textObject) {
        if (widthGiven && heightGiven) paintBox(d, px, py);
        return;
    }
    paintBox(d, px, py);
    int tx, ty;
    textOrigin(px, py, &tx, &ty);
    textObject->draw(tx, ty, getFontColor(), kTopLeft);
}

std::vector<int> TextBoxImpl::getPreciseCoor(int offsetX, int offsetY) {
    double angle = std::fmod(std::fabs(getFontAngle()), 90);
    TTFBlocks *blocks = dynamic_cast<TTFBlocks *>(textObject);
    if (!blocks || angle < 10 || angle > 80) return BoxImpl::getPreciseCoor(offsetX, offsetY);
    // The text's own box with its margins, turned about the text's centre.
    int tx, ty;
    textOrigin(x + offsetX, y + offsetY, &tx, &ty);
    double cx = tx + blocks->getWidth() / 2.0, cy = ty + blocks->getHeight() / 2.0;
    double halfW =
        (blocks->getBoxWidth() + usedMargin[kLeftMargin] + usedMargin[kRightMargin]) / 2.0;
    double halfH =
        (blocks->getBoxHeight() + usedMargin[kTopMargin] + usedMargin[kBottomMargin]) / 2.0;
    double t = getFontAngle() * kPi / 180, c = std::cos(t), s = std::sin(t);
    const int signs[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    std::vector<int> coords;
    for (const int *k : signs) {
        double u = k[0] * halfW, v = k[1] * halfH;
        // Counter-clockwise on the screen, whose y points down.
        coords.push_back((int)std::floor(cx + u * c + v * s + 0.5));
        coords.push_back((int)std::floor(cy - u * s + v * c + 0.5));
    }
    return coords;
}
