// VSBoxXPG: a rectangle with a background, a border and rounded corners.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using B = abc::Box;

template <auto Method, class... Arg>
constexpr auto fwd = forward<BoxTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setPos(x as integer, y as integer)", fwd<&B::setPos, Px, Px>),
    method("setSize(width as integer, height as integer)", fwd<&B::setSize, Px, Px>),
    method("setBackground(colorValue as integer, edgeColor as integer = -1, "
           "raisedEffect as integer = 0)", fwd<&B::setBackground, Color, Color, Int>),
    method("setBackground(colorValue as color, edgeColor as integer = -1, "
           "raisedEffect as integer = 0)", fwd<&B::setBackground, ColorC, Color, Int>),
    method("setBackground(colorValue as color, edgeColor as color, raisedEffect as integer = 0)",
           fwd<&B::setBackground, ColorC, ColorC, Int>),
    method("setRoundedCorners(r1 as integer = 10, r2 as integer = -1, r3 as integer = -1, "
           "r4 as integer = -1)", fwd<&B::setRoundedCorners, PxAuto, PxAuto, PxAuto, PxAuto>),
    method("getImageCoor(offsetX as integer = 0, offsetY as integer = 0) as string",
           fwd<&B::getImageCoor, Px, Px>),
    method("getWidth() as integer", fwd<&B::getWidth>),
    method("getHeight() as integer", fwd<&B::getHeight>),
    method("getLeftX() as integer", fwd<&B::getLeftX>),
    method("getTopY() as integer", fwd<&B::getTopY>),
};
// clang-format on

}  // namespace

const ClassTables kBoxTables = derivedTables(tableOf(kMethods));
