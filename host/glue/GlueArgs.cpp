#include "host/glue/GlueArgs.h"

#include "host/abc/ArrayMath.h"
#include "host/abc/chart/Axis.h"
#include "host/glue/Blocks.h"
#include "host/glue/ClassRegistry.h"

namespace glue {

abc::DrawArea *Canvas::in(Host v) {
    return v ? blockOf<DrawAreaBlock>(v, ClassId::DrawArea)->handle : nullptr;
}

abc::Axis *AxisObj::in(Host v) {
    return v ? blockOf<AxisBlock>(v, ClassId::Axis)->axis : nullptr;
}

abc::Layer *LayerObj::in(Host v) {
    return v ? blockOf<LayerBlock>(v, ClassId::Layer)->layer : nullptr;
}

abc::BaseChart *ChartObj::in(Host v) {
    return v ? blockOf<ChartBlock>(v, ClassId::BaseChart)->handle : nullptr;
}

abc::DoubleArray ArrayValues::in(Host v) {
    abc::ArrayMath *a =
        v ? blockOf<HandleBlock<abc::ArrayMath>>(v, ClassId::Array)->handle : nullptr;
    return a ? a->result() : abc::DoubleArray{0, nullptr};
}

}  // namespace glue
