#pragma once

#include "host/sdk/PluginTypes.h"

// The data blocks the host keeps behind each object.  Every block starts with
// two host references that hold a lock: owner keeps the engine object alive,
// parent is handed on from object to object.  Then come the wrappers, one per
// interface level, so that the glue needs no cast.  A derived class has no block
// of its own and uses its root's.

namespace abc {
class VSObject;
template <class T>
class AutoDeleteContainer;
class BaseChart;
class XYChart;
class PieChart;
class MultiChart;
class PolarChart;
class BaseMeter;
class AngularMeter;
class LinearMeter;
class ThreeDChart;
class SurfaceChart;
class ThreeDScatterChart;
class PyramidChart;
class TreeMapChart;
class FinanceChart;
class Layer;
class BarLayer;
class LineLayer;
class AreaLayer;
class BaseBoxLayer;
class HLOCLayer;
class CandleStickLayer;
class BoxWhiskerLayer;
class TrendLayer;
class SplineLayer;
class StepLineLayer;
class InterLineLayer;
class ScatterLayer;
class VectorLayer;
class ContourLayer;
class DiscreteHeatMapLayer;
class PolarLayer;
class PolarLineLayer;
class PolarAreaLayer;
class PolarSplineLineLayer;
class PolarSplineAreaLayer;
class PolarVectorLayer;
class Axis;
class ColorAxis;
class DataSet;
class ViewPortControlBase;
class ThreeDScatterGroup;
class MultiPagePDF;
class DrawArea;
}  // namespace abc

// owner, parent, a reserved slot and one wrapper: most classes.
template <class W>
struct HandleBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    W *handle;
};

// The same with one more host reference, cached or kept alive for the object.
template <class W>
struct HandleRefBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    W *handle;
    REALobject extra;
};

struct DrawAreaBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    abc::DrawArea *handle;
    // This object made the canvas and deletes it; a chart's canvas is borrowed.
    bool ownsCanvas;
    // Dictionary of the values handed to setResource, created on first use.
    REALobject resources;
};

struct AxisBlock {
    REALobject owner;
    REALobject parent;
    // The chart of a standing axis, which has no owner: held without a lock,
    // as one would make a cycle, and cleared with the axis when the chart goes.
    REALobject chart;
    abc::Axis *axis;
    abc::ColorAxis *colorAxis;
};

// The standing axes a chart caches, beside its angular axis.
enum ChartAxisSlot {
    kXAxisSlot,
    kYAxisSlot,
    kXAxis2Slot,
    kYAxis2Slot,
    kZAxisSlot,
    kRadialAxisSlot,
    kColorAxisSlot,
    kMeterAxisSlot,
    kChartAxisSlots
};

struct ChartBlock {
    REALobject owner;
    REALobject parent;
    // Wrappers to delete with the chart.
    abc::AutoDeleteContainer<abc::VSObject> *extras;
    abc::BaseChart *handle;
    abc::XYChart *xyChart;
    abc::PieChart *pieChart;
    abc::MultiChart *multiChart;
    abc::PolarChart *polarChart;
    abc::BaseMeter *baseMeter;
    abc::AngularMeter *angularMeter;
    abc::LinearMeter *linearMeter;
    abc::ThreeDChart *threeDChart;
    abc::SurfaceChart *surfaceChart;
    abc::ThreeDScatterChart *threeDScatterChart;
    abc::PyramidChart *pyramidChart;
    abc::TreeMapChart *treeMapChart;
    abc::FinanceChart *financeChart;
    // Cached on first access, each holding one lock (VSAngularAxisXPG, VSAxisXPG).
    REALobject angularAxis;
    REALobject axes[kChartAxisSlots];
    // The host charts added to a multi-chart, locked.
    REALarray children;
    REALobject resources;
};

struct LayerBlock {
    REALobject owner;
    REALobject parent;
    abc::Layer *layer;
    abc::BarLayer *barLayer;
    abc::LineLayer *lineLayer;
    abc::AreaLayer *areaLayer;
    abc::BaseBoxLayer *baseBoxLayer;
    abc::HLOCLayer *hlocLayer;
    abc::CandleStickLayer *candleStickLayer;
    abc::BoxWhiskerLayer *boxWhiskerLayer;
    abc::TrendLayer *trendLayer;
    abc::SplineLayer *splineLayer;
    abc::StepLineLayer *stepLineLayer;
    abc::InterLineLayer *interLineLayer;
    abc::ScatterLayer *scatterLayer;
    abc::VectorLayer *vectorLayer;
    abc::ContourLayer *contourLayer;
    abc::DiscreteHeatMapLayer *discreteHeatMapLayer;
    // The layer's axis object, cached like a chart's.
    REALobject axis;
};

struct PolarLayerBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    abc::PolarLayer *polarLayer;
    abc::PolarLineLayer *polarLineLayer;
    abc::PolarAreaLayer *polarAreaLayer;
    abc::PolarSplineLineLayer *polarSplineLineLayer;
    abc::PolarSplineAreaLayer *polarSplineAreaLayer;
    abc::PolarVectorLayer *polarVectorLayer;
    REALobject axis;
};

// A data set keeps its axis object and a spare reference.
struct DataSetBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    abc::DataSet *handle;
    REALobject axis;
    REALobject spare;
};

struct ViewPortControlBlock {
    REALobject owner;
    REALobject parent;
    void *reserved;
    abc::ViewPortControlBase *handle;
    REALobject viewer;
    REALobject spare;
};

// The sizes the host is told.
static_assert(sizeof(HandleBlock<abc::DrawArea>) == 32, "plain block");
static_assert(sizeof(HandleRefBlock<abc::ThreeDScatterGroup>) == 40, "block with a reference");
static_assert(sizeof(DrawAreaBlock) == 48, "canvas block");
static_assert(sizeof(AxisBlock) == 40, "axis block");
static_assert(sizeof(ChartBlock) == 224, "chart block");
static_assert(sizeof(LayerBlock) == 152, "layer block");
static_assert(sizeof(PolarLayerBlock) == 80, "polar layer block");
static_assert(sizeof(DataSetBlock) == 48, "data set block");
static_assert(sizeof(ViewPortControlBlock) == 48, "view port control block");
