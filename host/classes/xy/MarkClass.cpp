// VSMarkXPG: a line across the plot at a value of an axis, with its label;
// the text box of the label.  It holds its axis's chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using M = abc::Mark;

template <auto Method, class... Arg>
constexpr auto fwd = forward<MarkTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setValue(value as double)", fwd<&M::setValue, Dbl>),
    method("setMarkColor(lineColor as integer, textColor as integer = -1, "
           "tickColor as integer = -1)", fwd<&M::setMarkColor, Color, Color, Color>),
    method("setMarkColor(lineColor as color, textColor as integer = -1, "
           "tickColor as integer = -1)", fwd<&M::setMarkColor, ColorC, Color, Color>),
    method("setLineWidth(w as integer)", fwd<&M::setLineWidth, Px>),
    method("setDrawOnTop(b as boolean = true)", fwd<&M::setDrawOnTop, Bool>),
    method("getLine() as VSLineObjXPG", fwd<&M::getLine>),
};
// clang-format on

}  // namespace

const ClassTables kMarkTables = derivedTables(tableOf(kMethods));
