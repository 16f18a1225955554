// VSBarLayerXPG: a layer of bars.  Its block is the layer's.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using B = abc::BarLayer;

template <auto Method, class... Arg>
constexpr auto fwd = forward<BarLayerTarget, Method, Arg...>;

// Without radii: the end corners rounded by the radius boxes round theirs by.
void setRoundedCorners(REALobject self) {
    callWrapper<BarLayerTarget, void>(self, procOf(setRoundedCorners), [](B *b) {
        const int omitted = -2147483647;
        b->setRoundedCorners(Px::in(10), omitted, omitted, omitted);
    });
}

// clang-format off
const MethodEntry kMethods[] = {
    method("setBarGap(barGap as double, subBarGap as double = 1.7E308)",
           fwd<&B::setBarGap, Dbl, Dbl>),
    method("setBarWidth(barWidth as integer, subBarWidth as integer = -1)",
           fwd<&B::setBarWidth, Px, PxAuto>),
    method("setMinLabelSize(s as integer)", fwd<&B::setMinLabelSize, Px>),
    method("setMinImageMapSize(s as integer)", fwd<&B::setMinImageMapSize, Px>),
    method("setBarShape(shape as integer, dataGroup as integer = -1, dataItem as integer = -1)",
           fwd<&B::setBarShape, Int, Int, Int>),
    method("setBarShape(shape() as integer, dataGroup as integer = -1, "
           "dataItem as integer = -1)", fwd<&B::setBarShape2, Ints, Int, Int>),
    method("setIconSize(height as integer, width as integer = -1)",
           fwd<&B::setIconSize, PxAuto, PxAuto>),
    method("setOverlapRatio(overlapRatio as double, firstOnTop as boolean = true)",
           fwd<&B::setOverlapRatio, Dbl, Bool>),
    method("setRoundedCorners()", setRoundedCorners),
    method("setRoundedCorners(r1 as integer, r2 as integer = -2147483647, "
           "r3 as integer = -2147483647, r4 as integer = -2147483647)",
           fwd<&B::setRoundedCorners, PxAuto, PxAuto, PxAuto, PxAuto>),
};
// clang-format on

}  // namespace

const ClassTables kBarLayerTables = derivedTables(tableOf(kMethods));
