#pragma once

#include <vector>

#include "chart/layer/LayerImpl.h"
#include "layers/line/LineLayer.h"
#include "layers/line/MultiLine.h"
#include "layers/line/SymbolSizes.h"

class ClipChain;
class DataSetImpl;

// Lines through the points of each data set, and the data sets' symbols and
// labels at the points.  At layout each data set's points become the layer
// pixels of its line (MultiLine); with many more points than the x axis has
// pixels the column walk keeps at most four in each pixel column, so that
// what is drawn and written grows with the plot's width, not with the data.
// In 3D each segment is a ribbon face.  The sets paint from the last to the
// first, so that the first lies on top.
class LineLayerImpl : public virtual LineLayer, public LayerImpl, private LineMaker {
public:
    explicit LineLayerImpl(XYChartImpl *chart);
    ~LineLayerImpl() override;

    void setGapColor(int lineColor, int lineWidth) override;
    void setFastLineMode(bool fast) override { fastLineMode = fast; }
    void setImageMapWidth(int width) override { imageMapWidth = width; }
    void setSymbolScale(DoubleArray zDataX, int scaleTypeX, DoubleArray zDataY,
                        int scaleTypeY) override;
    void setSymbolScale2(DoubleArray zData, int scaleType) override;
    LineObj *getLine(int dataSet) override;

    // The line of a data set as laid out for the chart as it stands; null for
    // a set the layer doesn't have.
    const MultiLine *lineOf(int dataSet);
    // The width a data set's line is drawn with: its own, else the layer's.
    int lineWidthOf(int dataSet) const;
    // The rectangle that polygons and hot spots are cut to: the plot's clip
    // when the chart clips, else the whole chart.  Made at first use.
    ClipChain &getClipper();

protected:
    void onPrepare() override;
    void onPaint(LayerPainter &painter) override;
    void collectLabelSpots(std::vector<LabelSpot> &spots) override;
    void collectHotSpots(std::vector<HotSpot> &spots) override;
    int keyLineWidth(int dataSet) const override { return lineWidthOf(dataSet); }

private:
    MultiLine *lineAt(int dataSet);
    // The line of a set, made now if layout left it for later.
    MultiLine *builtLine(int dataSet);
    void makeLine(int dataSet) override;
    bool drawsLine(int dataSet) const;
    // Fills the data set's line by the plain walk or the column walk.
    void createLineObj(int dataSet, MultiLine &line);
    // The number of pixels along the x axis.
    int axisPixels() const;
    void paintLine(int dataSet, LayerPainter &painter);
    void paintFlat(const MultiLine &line, int color, int width, LayerPainter &painter);
    void paintRibbon(int dataSet, const MultiLine &line, int color, int width,
                     LayerPainter &painter);
    void symbolHotSpots(int dataSet, const LayerPainter &painter, std::vector<HotSpot> &spots);
    void releaseClipper();

    int imageMapWidth;
    int gapColor;
    int gapWidth;
    bool fastLineMode;
    SymbolSizes symbolSizes;
    std::vector<MultiLine *> lines;
    ClipChain *clipper;
};
