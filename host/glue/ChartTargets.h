#pragma once

#include "host/abc/chart/Axis.h"
#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/LineObj.h"
#include "host/abc/chart/Mark.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/VSLine.h"
#include "host/abc/pie/PieChart.h"
#include "host/abc/pie/Sector.h"
#include "host/abc/xy/AreaLayer.h"
#include "host/abc/xy/BarLayer.h"
#include "host/abc/xy/DataSet.h"
#include "host/abc/xy/Layer.h"
#include "host/abc/xy/LineLayer.h"
#include "host/abc/xy/PlotArea.h"
#include "host/abc/xy/XYChart.h"
#include "host/glue/Blocks.h"
#include "host/glue/ClassRegistry.h"

// The wrappers that the glue of the chart classes reaches (see Forward.h for
// what a target is).  The parts of a chart hand out their own parts with the
// chart as owner (partOwner), so that those keep the chart alive too.

// The owner of a part's block, or the part itself if it has none.
inline REALobject ownerOrSelf(REALobject self, ClassId root) {
    REALobject owner = blockOf<HandleBlock<void>>(self, root)->owner;
    return owner ? owner : self;
}

// Charts keep one slot per family in their block.
template <class W, W *ChartBlock::*Slot>
struct ChartSlot {
    using Wrapper = W;
    static ChartBlock *block(REALobject self) {
        return blockOf<ChartBlock>(self, ClassId::BaseChart);
    }
    static W *wrapperOf(REALobject self) { return block(self)->*Slot; }
};

struct BaseChartTarget : ChartSlot<abc::BaseChart, &ChartBlock::handle> {
    static constexpr const char *kWord = "basechart";
};
struct MultiChartTarget : ChartSlot<abc::MultiChart, &ChartBlock::multiChart> {
    static constexpr const char *kWord = "multichart";
};
struct XYChartTarget : ChartSlot<abc::XYChart, &ChartBlock::xyChart> {
    static constexpr const char *kWord = "xychart";
};
struct PieChartTarget : ChartSlot<abc::PieChart, &ChartBlock::pieChart> {
    static constexpr const char *kWord = "piechart";
};

// Drawing objects keep one wrapper, of the object's own kind; a class asks for
// its level of it.
template <class W>
struct DrawObjPart {
    using Wrapper = W;
    static W *wrapperOf(REALobject self) {
        return dynamic_cast<W *>(
            blockOf<HandleBlock<abc::DrawObj>>(self, ClassId::DrawObj)->handle);
    }
};

struct DrawObjTarget : DrawObjPart<abc::DrawObj> {
    static constexpr const char *kWord = "drawobj";
};
struct BoxTarget : DrawObjPart<abc::Box> {
    static constexpr const char *kWord = "box";
};
struct TextBoxTarget : DrawObjPart<abc::TextBox> {
    static constexpr const char *kWord = "textbox";
};
struct LegendBoxTarget : DrawObjPart<abc::LegendBox> {
    static constexpr const char *kWord = "legendbox";
};
struct LineTarget : DrawObjPart<abc::VSLine> {
    static constexpr const char *kWord = "line";
};
struct MarkTarget : DrawObjPart<abc::Mark> {
    static constexpr const char *kWord = "mark";
    static REALobject partOwner(REALobject self) { return ownerOrSelf(self, ClassId::DrawObj); }
};

// An axis's parts hold its chart: its owner, or the chart of a standing axis.
struct AxisTarget {
    using Wrapper = abc::Axis;
    static constexpr const char *kWord = "axis";
    static AxisBlock *block(REALobject self) { return blockOf<AxisBlock>(self, ClassId::Axis); }
    static Wrapper *wrapperOf(REALobject self) { return block(self)->axis; }
    static REALobject partOwner(REALobject self) {
        AxisBlock *b = block(self);
        return b->owner ? b->owner : b->chart ? b->chart : self;
    }
};

// Parts with the plain block of owner, parent, a reserved slot and the wrapper.
template <class W, ClassId Root>
struct HandlePart {
    using Wrapper = W;
    static W *wrapperOf(REALobject self) { return blockOf<HandleBlock<W>>(self, Root)->handle; }
    static REALobject partOwner(REALobject self) { return ownerOrSelf(self, Root); }
};

struct PlotAreaTarget : HandlePart<abc::PlotArea, ClassId::PlotArea> {
    static constexpr const char *kWord = "plotarea";
};
struct LineObjTarget : HandlePart<abc::LineObj, ClassId::LineObj> {
    static constexpr const char *kWord = "lineobj";
};
struct SectorTarget : HandlePart<abc::Sector, ClassId::Sector> {
    static constexpr const char *kWord = "sector";
};

struct DataSetTarget {
    using Wrapper = abc::DataSet;
    static constexpr const char *kWord = "dataset";
    static Wrapper *wrapperOf(REALobject self) {
        return blockOf<DataSetBlock>(self, ClassId::DataSet)->handle;
    }
    static REALobject partOwner(REALobject self) { return ownerOrSelf(self, ClassId::DataSet); }
};

// Layers keep one slot per kind in their block.
template <class W, W *LayerBlock::*Slot>
struct LayerSlot {
    using Wrapper = W;
    static W *wrapperOf(REALobject self) {
        return blockOf<LayerBlock>(self, ClassId::Layer)->*Slot;
    }
    static REALobject partOwner(REALobject self) { return ownerOrSelf(self, ClassId::Layer); }
};

struct LayerTarget : LayerSlot<abc::Layer, &LayerBlock::layer> {
    static constexpr const char *kWord = "layer";
};
struct BarLayerTarget : LayerSlot<abc::BarLayer, &LayerBlock::barLayer> {
    static constexpr const char *kWord = "barlayer";
};
struct LineLayerTarget : LayerSlot<abc::LineLayer, &LayerBlock::lineLayer> {
    static constexpr const char *kWord = "linelayer";
};
struct AreaLayerTarget : LayerSlot<abc::AreaLayer, &LayerBlock::areaLayer> {
    static constexpr const char *kWord = "arealayer";
};
