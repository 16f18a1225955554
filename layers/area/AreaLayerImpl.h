#pragma once

#include <vector>

#include "chart/layer/LayerImpl.h"
#include "layers/area/AreaLayer.h"

class ClipChain;
class MultiLine;

// Areas between each data set's line and its base: the base line, or under
// kStack and kPercentage the parts below it, so that the bands of a stack lie
// one on the other without overlap.  At layout each data set becomes two
// lines of layer pixels with the same points, its top and its floor; many
// points are reduced to the shape of each pixel column as lines are.  Gaps
// are bridged in the gap colour or left open; a 3D area shows the sides that
// face the viewer.  Data sets paint in order, symbols and labels above all.
class AreaLayerImpl : public AreaLayer, public LayerImpl {
public:
    explicit AreaLayerImpl(XYChartImpl *chart);
    ~AreaLayerImpl() override;

    void setMinLabelSize(int size) override { minLabelSize = size; }
    void setGapColor(int fillColor) override { gapColor = fillColor; }

    void foldDataRange(Axis *axis, bool isXAxis, double *min, double *max) override;

    // The top and the floor of a data set's band as laid out; null for a set
    // the layer doesn't have.
    const MultiLine *topOf(int dataSet);
    const MultiLine *floorOf(int dataSet);

protected:
    void onPrepare() override;
    void onPaint(LayerPainter &painter) override;
    void collectLabelSpots(std::vector<LabelSpot> &spots) override;
    void collectHotSpots(std::vector<HotSpot> &spots) override;

private:
    struct Band;
    // The runs of points between gaps: begin and end indexes into the lines.
    typedef std::vector<std::pair<int, int>> Runs;

    Band *bandAt(int dataSet);
    void createBand(int dataSet, Band &band);
    static Runs runsOf(const MultiLine &line);
    void paintBand(int dataSet, LayerPainter &painter);
    // The fill of runs from..to - 1 as one polygon, cut to the clip.
    void fillRuns(const Band &band, const Runs &runs, size_t from, size_t to, int color,
                  LayerPainter &painter);
    // The parts across the gaps, in the gap colour.
    void bridgeGaps(const Band &band, const Runs &runs, LayerPainter &painter);
    void paintSides(int dataSet, const Band &band, const Runs &runs, LayerPainter &painter);
    void paintEdges(const Band &band, const Runs &runs, bool joined, int color, int width,
                    LayerPainter &painter);
    // The canvas polygon of points, cut to the clip.
    void fillPolygon(const std::vector<double> &x, const std::vector<double> &y, int color,
                     LayerPainter &painter);
    bool isStacked() const;
    ClipChain &getClipper();

    std::vector<Band *> bands;
    int minLabelSize;
    int gapColor;
    ClipChain *clipper;
};
