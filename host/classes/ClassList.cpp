#include "host/classes/ClassList.h"

#include <cstring>

#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/Blocks.h"
#include "host/glue/Lifetime.h"

namespace abc {
class TreeMapNode;
class PlotArea;
class Sector;
class ViewPortManager;
class RanTable;
class RanSeries;
class DrawObj;
class TTFText;
class ArrayMath;
class AngularAxis;
class LineObj;
class ImageMapHandler;
class FinanceSimulator;
class PyramidLayer;
class DataAccelerator;
}  // namespace abc

namespace {

// Classes registered with their block's lifetime only, until their declaration
// tables are written.
template <ClassId Root, void (*Finalizer)(REALobject) = &ReleaseRefsOf<Root>>
const ClassTables kLifetime = rootTables<Root, Finalizer>({nullptr, 0});

template <class W>
constexpr size_t kPlain = sizeof(HandleBlock<W>);
template <class W>
constexpr size_t kWithRef = sizeof(HandleRefBlock<W>);

const char *const kChart = "VSBaseChartXPG";
const char *const kLayer = "VSLayerXPG";

// clang-format off
const ClassSpec kClasses[kClassCount] = {
    {"VSTreeMapNodeXPG", nullptr, kPlain<abc::TreeMapNode>, 18, 10,
     &kLifetime<ClassId::TreeMapNode>},
    {"VSTreeMapChartXPG", kChart, 0, 5, 1, nullptr},
    {"VSViewPortControlBaseXPG", nullptr, sizeof(ViewPortControlBlock), 10, 18,
     &kLifetime<ClassId::ViewPortControlBase>},
    {"VSThreeDChartXPG", kChart, 0, 20, 3, nullptr},
    {"VSMLTableXPG", "VSDrawObjXPG", 0, 18, 0, nullptr},
    {"VSPlotAreaXPG", nullptr, kPlain<abc::PlotArea>, 19, 0, &kPlotAreaTables},
    {"VSScatterLayerXPG", "VSLineLayerXPG", 0, 0, 0, nullptr},
    {"VSLinearMeterXPG", "VSBaseMeterXPG", 0, 9, 0, nullptr},
    {"VSBaseChartXPG", nullptr, sizeof(ChartBlock), 91, 2, &kBaseChartTables},
    {"VSPolarSplineLineLayerXPG", "VSPolarLineLayerXPG", 0, 1, 0, nullptr},
    {"VSMultiChartXPG", kChart, 0, 6, 0, &kMultiChartTables},
    {"VSBoxWhiskerLayerXPG", "VSBaseBoxLayerXPG", 0, 7, 0, nullptr},
    {"VSPolarChartXPG", kChart, 0, 38, 2, nullptr},
    {"VSDataSetXPG", nullptr, sizeof(DataSetBlock), 26, 0, &kDataSetTables},
    {"VSSectorXPG", nullptr, kPlain<abc::Sector>, 16, 0, &kSectorTables},
    {"VSLegendBoxXPG", "VSTextBoxXPG", 0, 15, 0, &kLegendBoxTables},
    {"VSPolarLineLayerXPG", "VSPolarLayerXPG", 0, 3, 0, nullptr},
    {"VSViewPortManagerXPG", nullptr, kPlain<abc::ViewPortManager>, 45, 0,
     &kLifetime<ClassId::ViewPortManager>},
    {"VSBaseMeterXPG", kChart, 0, 21, 0, nullptr},
    {"VSStepLineLayerXPG", "VSLineLayerXPG", 0, 1, 0, nullptr},
    {"VSAxisXPG", nullptr, sizeof(AxisBlock), 66, 0, &kAxisTables},
    {"VSDrawAreaXPG", nullptr, sizeof(DrawAreaBlock), 136, 2, &kDrawAreaTables},
    {"VSThreeDScatterGroupXPG", nullptr, kWithRef<abc::ThreeDScatterGroup>, 16, 0,
     &kLifetime<ClassId::ThreeDScatterGroup>},
    {"VSRanTableXPG", nullptr, kPlain<abc::RanTable>, 10, 0, &kLifetime<ClassId::RanTable>},
    {"VSRanSeriesXPG", nullptr, kPlain<abc::RanSeries>, 10, 0, &kLifetime<ClassId::RanSeries>},
    {"VSPolarLayerXPG", nullptr, sizeof(PolarLayerBlock), 25, 0,
     &kLifetime<ClassId::PolarLayer, &PolarLayerDestructor>},
    {"VSDrawObjXPG", nullptr, kPlain<abc::DrawObj>, 3, 0, &kDrawObjTables},
    {"VSMarkXPG", "VSTextBoxXPG", 0, 6, 0, &kMarkTables},
    {"VSPolarAreaLayerXPG", "VSPolarLayerXPG", 0, 0, 0, nullptr},
    {"VSTextBoxXPG", "VSBoxXPG", 0, 13, 0, &kTextBoxTables},
    {"VSTTFTextXPG", nullptr, kPlain<abc::TTFText>, 8, 0, &kTTFTextTables},
    {"VSLayerXPG", nullptr, sizeof(LayerBlock), 58, 0, &kLayerTables},
    {"VSMeterPointerXPG", "VSDrawObjXPG", 0, 17, 0, nullptr},
    {"VSXYChartXPG", kChart, 0, 118, 4, &kXYChartTables},
    {"VSBarLayerXPG", kLayer, 0, 11, 0, &kBarLayerTables},
    {"VSAngularAxisXPG", nullptr, kPlain<abc::AngularAxis>, 14, 0,
     &kLifetime<ClassId::AngularAxis>},
    {"VSLineXPG", "VSDrawObjXPG", 0, 4, 0, &kLineTables},
    {"VSCandleStickLayerXPG", "VSBaseBoxLayerXPG", 0, 4, 0, nullptr},
    {"VSLineObjXPG", nullptr, kPlain<abc::LineObj>, 1, 0, &kLineObjTables},
    {"VSSplineLayerXPG", "VSLineLayerXPG", 0, 2, 0, nullptr},
    {"VSPolarVectorLayerXPG", "VSPolarLayerXPG", 0, 8, 0, nullptr},
    {"VSImageMapHandlerXPG", nullptr, kPlain<abc::ImageMapHandler>, 5, 0,
     &kLifetime<ClassId::ImageMapHandler>},
    {"VSFinanceSimulatorXPG", nullptr, kPlain<abc::FinanceSimulator>, 8, 0,
     &kLifetime<ClassId::FinanceSimulator>},
    {"VSAngularMeterXPG", "VSBaseMeterXPG", 0, 40, 0, nullptr},
    {"VSAreaLayerXPG", kLayer, 0, 3, 0, &kAreaLayerTables},
    {"VSInterLineLayerXPG", kLayer, 0, 2, 0, nullptr},
    {"VSPieChartXPG", kChart, 0, 24, 0, &kPieChartTables},
    {"VSPolarSplineAreaLayerXPG", "VSPolarAreaLayerXPG", 0, 1, 0, nullptr},
    {"VSBoxXPG", "VSDrawObjXPG", 0, 11, 0, &kBoxTables},
    {"VSTrendLayerXPG", kLayer, 0, 12, 0, nullptr},
    {"VSLineLayerXPG", kLayer, 0, 7, 0, &kLineLayerTables},
    {"VSArrayXPG", nullptr, kPlain<abc::ArrayMath>, 71, 0, &kArrayTables},
    {"VSVectorLayerXPG", kLayer, 0, 8, 0, nullptr},
    {"VSBaseBoxLayerXPG", kLayer, 0, 5, 0, nullptr},
    {"VSHLOCLayerXPG", "VSBaseBoxLayerXPG", 0, 2, 0, nullptr},
    {"VSRadialAxisXPG", "VSAxisXPG", 0, 0, 0, nullptr},
    {"VSThreeDScatterChartXPG", "VSThreeDChartXPG", 0, 4, 0, nullptr},
    {"VSNotInitialzedExceptionXPG", "RuntimeException", 0, 0, 0, nullptr},
    {"VSPyramidChartXPG", kChart, 0, 26, 0, nullptr},
    {"VSSurfaceChartXPG", "VSThreeDChartXPG", 0, 27, 0, nullptr},
    {"VSPyramidLayerXPG", nullptr, kPlain<abc::PyramidLayer>, 17, 0,
     &kLifetime<ClassId::PyramidLayer>},
    {"VSContourLayerXPG", kLayer, 0, 17, 0, nullptr},
    {"VSColorAxisXPG", "VSAxisXPG", 0, 19, 0, nullptr},
    {"VSFinanceChartXPG", "VSMultiChartXPG", 0, 141, 0, nullptr},
    {"VSMultiPagePDFXPG", nullptr, kWithRef<abc::MultiPagePDF>, 6, 0,
     &kLifetime<ClassId::MultiPagePDF>},
    {"VSDiscreteHeatMapLayerXPG", kLayer, 0, 4, 0, nullptr},
    {"VSDataAcceleratorXPG", nullptr, kPlain<abc::DataAccelerator>, 7, 0,
     &kLifetime<ClassId::DataAccelerator>},
};
// clang-format on

}  // namespace

const ClassSpec &classSpec(ClassId id) {
    return kClasses[static_cast<int>(id)];
}

ClassId classNamed(const char *name) {
    for (int i = 0; i < kClassCount; ++i)
        if (name && strcmp(kClasses[i].name, name) == 0) return static_cast<ClassId>(i);
    return ClassId::Count;
}

ClassId rootOf(ClassId id) {
    // The chains are short and end at a class of ours with a block, or outside.
    for (int steps = 0; steps < kClassCount; ++steps) {
        const ClassSpec &spec = classSpec(id);
        ClassId super = classNamed(spec.superName);
        if (spec.dataSize > 0 || super == ClassId::Count) return id;
        id = super;
    }
    return id;
}
