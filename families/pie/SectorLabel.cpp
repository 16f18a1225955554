#include "families/pie/SectorLabel.h"

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/SectorLook.h"
#include "families/pie/label/JoinLine.h"
#include "text/box/TextBoxImpl2.h"

namespace {

const int kMainColorEntry = kSameAsMainColor & 0xFFFF;

}  // namespace

SectorLabel::SectorLabel(BoxContainer *chart, TextBoxImpl *prototype)
    : box(new TextBoxImpl2(chart, prototype)),
      shown(false),
      joined(false),
      side(false),
      leftColumn(false),
      anchorX(0),
      anchorY(0),
      rimX(0),
      rimY(0),
      elbowX(0),
      elbowY(0),
      gap(0),
      shift(0) {}

SectorLabel::~SectorLabel() {
    box->release();
}

void SectorLabel::layout(DrawArea *d, const std::string &text, int x, int y, int alignment,
                         int defaultBackground) {
    shown = !text.empty() && text != " " && d->getARGBColor(box->getFontColor()) != kTransparent;
    if (!shown) return;
    anchorX = x;
    anchorY = y;
    box->setText(text.c_str());
    if (!box->styleOf(BoxImpl::kBackgroundStyle)->isStyleSet(BoxImpl::kBackgroundStyle))
        box->setBackground(defaultBackground, -1, 0);
    box->setPos(x, y);
    box->setAlignment(alignment);
    box->setAnchored(true);
    box->layout(d);
    shown = box->getTextObject() != nullptr;
}

void SectorLabel::setRimAnchor(int x, int y) {
    joined = true;
    rimX = x;
    rimY = y;
}

void SectorLabel::setElbow(int x, int y, int elbowGap, bool left) {
    side = true;
    elbowX = x;
    elbowY = y;
    gap = elbowGap;
    leftColumn = left;
}

void SectorLabel::moveBy(int dy) {
    if (!shown || dy == 0) return;
    box->setPos(box->getLeftX(), box->getTopY() + dy);
    shift += dy;
}

int SectorLabel::getTopY() const {
    return box->getTopY();
}

int SectorLabel::getHeight() const {
    return box->getHeight();
}

void SectorLabel::paintJoinLine(DrawArea *d, const SectorLook &look) const {
    if (!hasJoinLine()) return;
    d->setColorTable(kMainColorEntry, look.color);
    if (d->getARGBColor(look.joinLineColor) == kTransparent) return;
    JoinLine line = side ? JoinLine(rimX, rimY, elbowX, elbowY, getAnchorX(), getAnchorY(),
                                    box->getHeight(), gap, leftColumn)
                         : JoinLine(rimX, rimY, getAnchorX(), getAnchorY());
    for (int i = 1; i < line.size(); ++i)
        d->line(line.x(i - 1), line.y(i - 1), line.x(i), line.y(i), look.joinLineColor,
                look.joinLineWidth);
}

void SectorLabel::paint(DrawArea *d, int mainColor) const {
    if (!shown) return;
    d->setColorTable(kMainColorEntry, mainColor);
    box->paint(d);
}

const char *SectorLabel::getImageCoor(int offsetX, int offsetY) const {
    return shown ? box->getImageCoor(offsetX, offsetY) : "";
}
