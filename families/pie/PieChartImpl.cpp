#include "families/pie/PieChartImpl.h"

#include <algorithm>
#include <cmath>

#include "chart/legend/LegendBoxImpl.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/SectorImpl.h"
#include "families/pie/SectorLabelPlacer.h"
#include "families/pie/SectorLegend.h"
#include "families/pie/SectorPlacer.h"
#include "families/pie/label/SectorTemplate.h"
#include "families/pie/shape/PieSurfaces.h"
#include "families/pie/shape/SectorPaintStyle.h"
#include "text/box/TextBoxImpl.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

const char *const kDefaultQuery = "sector={sector}&label={label}&value={value}&percent={percent}";
const char *const kDisabled = "{disable}";
const int kDefaultDepthAngle = 45;

}  // namespace

PieChart *PieChart::create(int width, int height, int bgColor, int edgeColor, int raisedEffect) {
    PieChartImpl *chart = new PieChartImpl();
    chart->initChart(width, height, bgColor, edgeColor, raisedEffect);
    return chart;
}

PieChartImpl::PieChartImpl() : labelPrototype(new TextBoxImpl(this)), view(kPi, false) {}

PieChartImpl::~PieChartImpl() {
    for (SectorImpl *s : sectors) delete s;
    for (SectorImpl *s : retiredSectors) delete s;
    labelPrototype->release();
}

SectorImpl *PieChartImpl::sectorAt(int index) {
    auto retired = std::find_if(retiredSectors.begin(), retiredSectors.end(),
                                [index](const SectorImpl *s) { return s->getIndex() == index; });
    if (retired == retiredSectors.end()) return new SectorImpl(this, labelPrototype, index);
    SectorImpl *s = *retired;
    retiredSectors.erase(retired);
    return s;
}

// ---- Settings ----

void PieChartImpl::setPieSize(int x, int y, int r) {
    settings.cx = x;
    settings.cy = y;
    settings.radius = std::max(r, 1);
    settings.donutRadius = 0;
}

void PieChartImpl::setDonutSize(int x, int y, int r, int r2) {
    settings.cx = x;
    settings.cy = y;
    settings.radius = std::max(std::max(r, r2), 1);
    settings.donutRadius = std::max(std::min(r, r2), 0);
}

void PieChartImpl::set3DView(double angle, bool shadowMode) {
    settings.depthAngle = angle;
    settings.shadowMode = shadowMode;
}

void PieChartImpl::set3D(int depth, double angle, bool shadowMode) {
    settings.depth = depth == -1 ? std::max(getHeight() / 20, 1) : depth;
    settings.severalDepths = false;
    settings.depths.clear();
    set3DView(angle == -1 ? (settings.depth != 0 ? kDefaultDepthAngle : 0) : angle, shadowMode);
}

void PieChartImpl::set3D2(DoubleArray depths, double angle, bool shadowMode) {
    settings.depths.assign(depths.data, depths.data + std::max(depths.len, 0));
    settings.severalDepths = true;
    set3DView(angle == -1 ? kDefaultDepthAngle : angle, shadowMode);
}

void PieChartImpl::setData(DoubleArray data, StringArray labels) {
    int n = std::max(data.len, 0);
    // Sectors the application may hold outlive a shorter data set: they are
    // put aside with their settings, and come back when their index does.
    for (int i = n; i < (int)sectors.size(); ++i) retiredSectors.push_back(sectors[i]);
    sectors.resize(std::min((int)sectors.size(), n));
    while ((int)sectors.size() < n) sectors.push_back(sectorAt((int)sectors.size()));
    for (int i = 0; i < n; ++i)
        sectors[i]->setData(data.data[i], i < labels.len ? labels.data[i] : nullptr);
}

void PieChartImpl::setStartAngle(double startAngle, bool clockWise) {
    double a = std::isfinite(startAngle) ? std::fmod(startAngle, 360) : 0;
    if (a < 0) a += 360;
    settings.startAngle = clockWise ? a : a - 360;
}

void PieChartImpl::setExplode(int sectorNo, int distance) {
    setExplodeGroup(sectorNo, sectorNo, distance);
}

void PieChartImpl::setExplodeGroup(int startSector, int endSector, int distance) {
    settings.explodeList.push_back({startSector, endSector, distance});
}

void PieChartImpl::setLabelFormat(const char *formatString) {
    settings.labelFormat = formatString ? formatString : "";
}

TextBox *PieChartImpl::setLabelStyle(const char *font, double fontSize, int fontColor) {
    labelPrototype->setFontStyle(font, 0);
    labelPrototype->setFontSize(fontSize, 0);
    labelPrototype->setFontColor(fontColor);
    return labelPrototype;
}

void PieChartImpl::setLabelPos(int pos, int joinLineColor) {
    bool side = pos >= 0x8000;
    settings.labelLayout = side ? kSideLayout : kCircleLayout;
    settings.labelPos = side ? pos & 0x7FFF : pos;
    if (joinLineColor != -1) settings.joinLineColor = joinLineColor;
}

void PieChartImpl::setLabelLayout(int layoutMethod, int pos, int topBound, int bottomBound) {
    settings.labelLayout = layoutMethod;
    if (pos != -1) settings.labelPos = pos;
    settings.topBound = topBound;
    settings.bottomBound = bottomBound;
}

void PieChartImpl::setJoinLine(int joinLineColor, int joinLineWidth) {
    settings.joinLineColor = joinLineColor;
    if (joinLineWidth != -1) settings.joinLineWidth = joinLineWidth;
}

void PieChartImpl::setLineColor(int edgeColor, int joinLineColor) {
    settings.edgeColor = edgeColor;
    if (joinLineColor != -1) settings.joinLineColor = joinLineColor;
}

void PieChartImpl::setSectorStyle(int shadingMethod, int edgeColor, int edgeWidth) {
    settings.shadingMethod = shadingMethod;
    if (edgeColor != -1) settings.edgeColor = edgeColor;
    if (edgeWidth != -1) settings.edgeWidth = edgeWidth;
}

Sector *PieChartImpl::sector(int sectorNo) {
    return sectorNo >= 0 && sectorNo < (int)sectors.size() ? sectors[sectorNo] : nullptr;
}

std::string PieChartImpl::fillSectorTemplate(int sector, const char *templateText, int flags) {
    if (sector < 0 || sector >= (int)sectors.size()) return "";
    const SectorImpl *s = sectors[sector];
    SectorTemplate::Fields fields = {s->getLabelText().c_str(), s->getValue(),
                                     s->getFraction() * 100, sector};
    return SectorTemplate(getFormatter(), getExtraFields(), this).fill(templateText, flags, fields);
}

// ---- Layout ----

void PieChartImpl::computeFractions() {
    // Shares are taken of values scaled by the largest, so that no sum overflows.
    double largest = 0;
    int valued = 0;
    for (const SectorImpl *s : sectors) {
        if (!s->hasValue()) continue;
        largest = std::max(largest, std::fabs(s->getValue()));
        ++valued;
    }
    double total = 0;
    if (largest > 0)
        for (const SectorImpl *s : sectors)
            if (s->hasValue()) total += std::fabs(s->getValue()) / largest;
    for (SectorImpl *s : sectors) {
        if (!s->hasValue())
            s->setFraction(0);
        else if (total > 0)
            s->setFraction(std::fabs(s->getValue()) / largest / total);
        else
            // Nothing but zeros: the sectors share equally.
            s->setFraction(1.0 / valued);
    }
}

void PieChartImpl::onLayoutLegend() {
    computeFractions();
    LegendBoxImpl *legend = existingLegend();
    if (!legend) return;
    for (SectorImpl *s : sectors)
        legend->addLegendItem(s->getIndex(), new SectorLegend(this, s->getIndex()), s->getColor(),
                              -1, nullptr);
}

void PieChartImpl::onLayoutChart() {
    SectorPlacer placer(settings);
    view = placer.getView();
    for (SectorImpl *s : sectors) s->resolve(settings, placer.getRadius());
    placer.place(sectors);
    SectorTemplate labels(getFormatter(), getExtraFields(), this);
    SectorLabelPlacer(getDrawArea(), settings, placer.getRadius(), view, getHeight(), labels)
        .place(sectors);
}

// ---- Painting ----

void PieChartImpl::onPaint() {
    DrawArea *d = getRawDrawArea();
    SectorPlacer placer(settings);
    int drawn = (int)std::count_if(sectors.begin(), sectors.end(),
                                   [](const SectorImpl *s) { return s->isDrawn(); });
    PieSurfaces surfaces(view);
    for (SectorImpl *s : sectors) {
        if (!s->isDrawn()) continue;
        const SectorLook &look = s->getLook();
        SectorPaintStyle style;
        style.color = look.color;
        style.edgeColor = look.edgeColor;
        style.edgeWidth = look.edgeWidth;
        style.shading = look.shading;
        style.pieTop = settings.cy - placer.getRadiusY();
        style.pieBottom = settings.cy + placer.getRadiusY();
        if (drawn == 1)
            surfaces.addWholeDisc(d, s->getGeometry(), style);
        else
            surfaces.addSector(d, s->getGeometry(), style);
    }
    surfaces.paint(d);
    for (const SectorImpl *s : sectors) s->getLabel().paintJoinLine(d, s->getLook());
    for (const SectorImpl *s : sectors) s->getLabel().paint(d, s->getLook().color);
}

const char *PieChartImpl::onGetHTMLImageMap(const char *url, const char *queryFormat,
                                            const char *extraAttr, int offsetX, int offsetY) {
    layout();
    imageMap.clear();
    std::string query = combineQuery(queryFormat, kDefaultQuery);
    if (query == kDisabled) return imageMap.c_str();
    for (SectorImpl *s : sectors) {
        if (!s->isDrawn()) continue;
        int i = s->getIndex();
        std::string href =
            urlJoin(url, fillSectorTemplate(i, query.c_str(), VSParser::kEscapeURL).c_str());
        std::string extra =
            fillSectorTemplate(i, extraAttr ? extraAttr : "", VSParser::kEscapeHTML);
        std::string attributes =
            " href=\"" + href + "\"" + (extra.empty() ? "" : " " + extra) + ">\n";
        imageMap += std::string("<area ") + s->getImageCoor(offsetX, offsetY) + attributes;
        if (s->getLabel().isShown())
            imageMap += std::string("<area ") + s->getLabelCoor(offsetX, offsetY) + attributes;
    }
    return imageMap.c_str();
}
