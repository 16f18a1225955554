// VSSectorXPG: one sector of a pie.  No Constructor: sectors come from their
// chart, which they hold; a sector stays usable when the data shrinks.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using S = abc::Sector;

template <auto Method, class... Arg>
constexpr auto fwd = forward<SectorTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setStyle(shadingMethod as integer, edgeColor as integer = -1, "
           "edgeWidth as integer = -1)", fwd<&S::setStyle, Int, Color, PxAuto>),
    method("setStyle(shadingMethod as integer, edgeColor as color, edgeWidth as integer = -1)",
           fwd<&S::setStyle, Int, ColorC, PxAuto>),
    method("setLabelFormat(formatString as string = \"\")", fwd<&S::setLabelFormat, Str>),
    method("setLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002) as VSTextBoxXPG",
           fwd<&S::setLabelStyle, Str, Dbl, Color>),
    method("setLabelStyle(font as string, fontSize as double, fontColor as color) "
           "as VSTextBoxXPG", fwd<&S::setLabelStyle, Str, Dbl, ColorC>),
    method("setExplode(distance as integer = -1)", fwd<&S::setExplode, PxAuto>),
    method("setLabelPos(pos as integer, joinLineColor as integer = -1)",
           fwd<&S::setLabelPos, LabelPos, Color>),
    method("setLabelPos(pos as integer, joinLineColor as color)",
           fwd<&S::setLabelPos, LabelPos, ColorC>),
    method("setLabelLayout(layoutMethod as integer, pos as integer = -1)",
           fwd<&S::setLabelLayout, Int, PxAuto>),
    method("setJoinLine(joinLineColor as integer, joinLineWidth as integer = 1)",
           fwd<&S::setJoinLine, Color, Px>),
    method("setJoinLine(joinLineColor as color, joinLineWidth as integer = 1)",
           fwd<&S::setJoinLine, ColorC, Px>),
    method("setColor(colorValue as integer, edgeColor as integer = -1, "
           "joinLineColor as integer = -1)", fwd<&S::setColor, Color, Color, Color>),
    method("setColor(colorValue as color, edgeColor as integer = -1, "
           "joinLineColor as integer = -1)", fwd<&S::setColor, ColorC, Color, Color>),
    method("setColor(colorValue as color, edgeColor as color, joinLineColor as integer = -1)",
           fwd<&S::setColor, ColorC, ColorC, Color>),
    method("getImageCoor(offsetX as integer = 0, offsetY as integer = 0) as string",
           fwd<&S::getImageCoor, Px, Px>),
    method("getLabelCoor(offsetX as integer = 0, offsetY as integer = 0) as string",
           fwd<&S::getLabelCoor, Px, Px>),
};
// clang-format on

}  // namespace

const ClassTables kSectorTables = rootTables<ClassId::Sector>(tableOf(kMethods));
