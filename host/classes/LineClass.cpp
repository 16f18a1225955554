// VSLineXPG: a free line on a chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using L = abc::VSLine;

template <auto Method, class... Arg>
constexpr auto fwd = forward<LineTarget, Method, Arg...>;

const MethodEntry kMethods[] = {
    method("setPos(x1 as integer, y1 as integer, x2 as integer, y2 as integer)",
           fwd<&L::setPos, Px, Px, Px, Px>),
    method("setColor(colorValue as integer)", fwd<&L::setColor, Color>),
    method("setColor(colorValue as color)", fwd<&L::setColor, ColorC>),
    method("setWidth(lineWidth as integer)", fwd<&L::setWidth, Px>),
};

}  // namespace

const ClassTables kLineTables = derivedTables(tableOf(kMethods));
