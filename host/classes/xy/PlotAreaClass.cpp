// VSPlotAreaXPG: the plot rectangle of an XY chart, its background, grid and
// edge.  No Constructor: the plot area comes from its chart, which it holds.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using P = abc::PlotArea;

template <auto Method, class... Arg>
constexpr auto fwd = forward<PlotAreaTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setBackground(colorValue as integer, altBgColor as integer = -1, "
           "edgeColor as integer = -1)", fwd<&P::setBackground, Color, Color, Color>),
    method("setBackground(colorValue as color, altBgColor as integer = -1, "
           "edgeColor as integer = -1)", fwd<&P::setBackground, ColorC, Color, Color>),
    method("setBackground2(path as string, align as integer = 5)",
           fwd<&P::setBackground2, Str, Int>),
    method("set4QBgColor(q1Color as integer, q2Color as integer, q3Color as integer, "
           "q4Color as integer, edgeColor as integer = -1)",
           fwd<&P::set4QBgColor, Color, Color, Color, Color, Color>),
    method("set4QBgColor(q1Color as color, q2Color as color, q3Color as color, "
           "q4Color as color, edgeColor as integer = -1)",
           fwd<&P::set4QBgColor, ColorC, ColorC, ColorC, ColorC, Color>),
    method("setAltBgColor(horizontal as boolean, color1 as integer, color2 as integer, "
           "edgeColor as integer = -1)", fwd<&P::setAltBgColor, Bool, Color, Color, Color>),
    method("setAltBgColor(horizontal as boolean, color1 as color, color2 as color, "
           "edgeColor as integer = -1)", fwd<&P::setAltBgColor, Bool, ColorC, ColorC, Color>),
    method("setGridColor(hGridColor as integer, vGridColor as integer = &hFF000000, "
           "minorHGridColor as integer = -1, minorVGridColor as integer = -1)",
           fwd<&P::setGridColor, Color, Color, Color, Color>),
    method("setGridColor(hGridColor as color, vGridColor as integer = &hFF000000, "
           "minorHGridColor as integer = -1, minorVGridColor as integer = -1)",
           fwd<&P::setGridColor, ColorC, Color, Color, Color>),
    method("setGridColor(hGridColor as color, vGridColor as color, "
           "minorHGridColor as integer = -1, minorVGridColor as integer = -1)",
           fwd<&P::setGridColor, ColorC, ColorC, Color, Color>),
    method("setGridWidth(hGridWidth as integer, vGridWidth as integer = -1, "
           "minorHGridWidth as integer = -1, minorVGridWidth as integer = -1)",
           fwd<&P::setGridWidth, Px, PxAuto, PxAuto, PxAuto>),
    method("setGridAxis(xGridAxis as VSAxisXPG, yGridAxis as VSAxisXPG)",
           fwd<&P::setGridAxis, AxisObj, AxisObj>),
    method("moveGridBefore(layer as VSLayerXPG = nil)", fwd<&P::moveGridBefore, LayerObj>),
    method("getLeftX() as integer", fwd<&P::getLeftX>),
    method("getTopY() as integer", fwd<&P::getTopY>),
    method("getWidth() as integer", fwd<&P::getWidth>),
    method("getHeight() as integer", fwd<&P::getHeight>),
    method("getRightX() as integer", fwd<&P::getRightX>),
    method("getBottomY() as integer", fwd<&P::getBottomY>),
};
// clang-format on

}  // namespace

const ClassTables kPlotAreaTables = rootTables<ClassId::PlotArea>(tableOf(kMethods));
