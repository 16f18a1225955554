#pragma once

#include <string>
#include <vector>

#include "chart/base/BaseChartImpl.h"
#include "families/pie/PieChart.h"
#include "families/pie/PieSettings.h"
#include "families/pie/shape/PieView.h"

class SectorImpl;
class TextBoxImpl;

class PieChartImpl : public PieChart, public BaseChartImpl {
public:
    PieChartImpl();
    ~PieChartImpl() override;

    void setPieSize(int x, int y, int r) override;
    void setDonutSize(int x, int y, int r, int r2) override;
    void set3D(int depth, double angle, bool shadowMode) override;
    void set3D2(DoubleArray depths, double angle, bool shadowMode) override;
    void setData(DoubleArray data, StringArray labels) override;
    void setStartAngle(double startAngle, bool clockWise) override;
    void setExplode(int sectorNo, int distance) override;
    void setExplodeGroup(int startSector, int endSector, int distance) override;
    void setLabelFormat(const char *formatString) override;
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) override;
    void setLabelPos(int pos, int joinLineColor) override;
    void setLabelLayout(int layoutMethod, int pos, int topBound, int bottomBound) override;
    void setJoinLine(int joinLineColor, int joinLineWidth) override;
    void setLineColor(int edgeColor, int joinLineColor) override;
    void setSectorStyle(int shadingMethod, int edgeColor, int edgeWidth) override;
    Sector *sector(int sectorNo) override;

    // A template filled with the attributes of a sector; flags are the
    // template parser's escaping flags.
    std::string fillSectorTemplate(int sector, const char *templateText, int flags);
    const PieSettings &getSettings() const { return settings; }

    // A factory's second step, reachable from PieChart::create.
    using BaseChartImpl::initChart;

protected:
    // Shares of the whole, then a legend key for each sector.
    void onLayoutLegend() override;
    // Settles each sector's look and place, then lays out the labels.
    void onLayoutChart() override;
    // The surfaces farthest first, then join lines, then labels.
    void onPaint() override;
    const char *onGetHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                  int offsetX, int offsetY) override;

private:
    void computeFractions();
    void set3DView(double angle, bool shadowMode);
    // The sector of the index: one put aside earlier, or a new one.
    SectorImpl *sectorAt(int index);

    PieSettings settings;
    std::vector<SectorImpl *> sectors;
    // Sectors beyond the current data, kept for those who hold them.
    std::vector<SectorImpl *> retiredSectors;
    TextBoxImpl *labelPrototype;
    PieView view;
    std::string imageMap;
};
