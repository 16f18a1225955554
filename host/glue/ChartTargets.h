#pragma once

#include "host/abc/chart/Axis.h"
#include "host/abc/chart/LegendBox.h"
#include "host/abc/chart/MultiChart.h"
#include "host/abc/chart/VSLine.h"
#include "host/glue/Blocks.h"
#include "host/glue/ClassRegistry.h"

// The wrappers that the glue of the chart classes reaches (see Forward.h for
// what a target is).

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

struct AxisTarget {
    using Wrapper = abc::Axis;
    static constexpr const char *kWord = "axis";
    static Wrapper *wrapperOf(REALobject self) {
        return blockOf<AxisBlock>(self, ClassId::Axis)->axis;
    }
};
