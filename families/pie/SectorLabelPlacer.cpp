#include "families/pie/SectorLabelPlacer.h"

#include <algorithm>
#include <cmath>

#include "draw/pixel/ColorWords.h"
#include "families/pie/PieSettings.h"
#include "families/pie/SectorImpl.h"
#include "families/pie/label/SectorTemplate.h"
#include "families/pie/label/SideLabelColumn.h"
#include "foundation/Constants.h"
#include "text/template/VSParser.h"

SectorLabelPlacer::SectorLabelPlacer(DrawArea *d, const PieSettings &pie, int radius,
                                     const PieView &view, int chartHeight,
                                     const SectorTemplate &labels)
    : d(d), pie(pie), radius(radius), view(view), chartHeight(chartHeight), labels(labels) {}

int SectorLabelPlacer::circleAlignment(double mid) {
    if (mid < kPi / 4) return kBottomLeft;
    if (mid < 3 * kPi / 4) return kLeft;
    if (mid < kPi) return kTopLeft;
    if (mid < 5 * kPi / 4) return kTopRight;
    if (mid < 7 * kPi / 4) return kRight;
    return kBottomRight;
}

void SectorLabelPlacer::place(const std::vector<SectorImpl *> &sectors) const {
    std::vector<SectorImpl *> right, left;
    for (SectorImpl *s : sectors) {
        if (!s->hasValue()) continue;
        placeLabel(s);
        const SectorLook &look = s->getLook();
        if (!look.sideLayout || look.labelPos < 0 || !s->getLabel().isShown()) continue;
        (s->getGeometry().mid <= kPi ? right : left).push_back(s);
    }
    // Top to bottom whichever way the pie runs: down the right side clockwise
    // from 12 o'clock, down the left side anti-clockwise.
    std::stable_sort(right.begin(), right.end(), [](const SectorImpl *a, const SectorImpl *b) {
        return a->getGeometry().mid < b->getGeometry().mid;
    });
    std::stable_sort(left.begin(), left.end(), [](const SectorImpl *a, const SectorImpl *b) {
        return a->getGeometry().mid > b->getGeometry().mid;
    });
    spreadColumn(right);
    spreadColumn(left);
}

void SectorLabelPlacer::placeLabel(SectorImpl *s) const {
    const SectorLook &look = s->getLook();
    const SectorGeometry &g = s->getGeometry();
    SectorTemplate::Fields fields = {s->getLabelText().c_str(), s->getValue(),
                                     s->getFraction() * 100, s->getIndex()};
    std::string text = labels.fill(look.labelFormat.c_str(), VSParser::kOldDelimiter, fields);
    // Where the wall shows, labels stand off its bottom.
    int baseX = g.x, baseY = g.y;
    if (view.isNearHalf(g.mid)) baseX += g.depthX, baseY += g.depthY;
    int gap = look.sideLayout ? look.labelPos / 10 : look.labelPos;
    long long outX = (long long)g.rx + gap;
    long long outY = outX * g.ry / std::max(g.rx, 1);
    int x = baseX + PieAngle::round(outX * std::sin(g.mid));
    int y = baseY - PieAngle::round(outY * std::cos(g.mid));
    bool inside = look.labelPos < 0;
    bool leftColumn = g.mid > kPi;
    int alignment = inside            ? kCenter
                    : look.sideLayout ? (leftColumn ? kRight : kLeft)
                                      : circleAlignment(g.mid);
    SectorLabel &label = s->getLabel();
    if (look.sideLayout && !inside) {
        long long column = (long long)radius + look.labelPos;
        int naturalX = x;
        x = PieAngle::round((double)pie.cx + (leftColumn ? -column : column));
        label.setElbow(naturalX, y, gap, leftColumn);
    }
    label.layout(d, text, x, y, alignment, look.sideLayout ? kSameAsMainColor : kTransparent);
    if (!inside)
        label.setRimAnchor(baseX + PieAngle::round(g.rx * std::sin(g.mid)),
                           baseY - PieAngle::round(g.ry * std::cos(g.mid)));
}

void SectorLabelPlacer::spreadColumn(std::vector<SectorImpl *> &column) const {
    SideLabelColumn spread(pie.topBound == -1 ? 0 : pie.topBound,
                           pie.bottomBound == -1 ? chartHeight : pie.bottomBound);
    for (SectorImpl *s : column) spread.add(s->getLabel().getTopY(), s->getLabel().getHeight());
    spread.spread();
    for (int i = 0; i < spread.size(); ++i) column[i]->getLabel().moveBy(spread.getShift(i));
}
