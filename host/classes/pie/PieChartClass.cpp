// VSPieChartXPG: a pie or donut, flat or in 3D.  Its sectors and label style
// hold the chart.
#include "host/classes/ChartConstructor.h"
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using PC = abc::PieChart;

template <auto Method, class... Arg>
constexpr auto fwd = forward<PieChartTarget, Method, Arg...>;

// Above a ScaleFactor of 1, sector labels at the default size would come out
// too small.
struct ScaledLabels {
    static void apply(PC *chart) {
        const int kTextColor = (int)0xFFFF0002;
        chart->setLabelStyle("", 8 * getScaleFactor(), kTextColor);
    }
};

template <class BgColor>
constexpr auto construct = constructChart<PieChartTarget, &PC::create, BgColor, ScaledLabels>;

// clang-format off
const MethodEntry kMethods[] = {
    method("Constructor(width as integer = 640, height as integer = 480, "
           "bgColor as integer = &hFFFF0000, edgeColor as integer = &hFF000000, "
           "raisedEffect as integer = 0)", construct<Color>),
    method("Constructor(width as integer, height as integer, bgColor as color, "
           "edgeColor as integer = &hFF000000, raisedEffect as integer = 0)", construct<ColorC>),
    method("setPieSize(x as integer, y as integer, r as integer)",
           fwd<&PC::setPieSize, Px, Px, Px>),
    method("setDonutSize(x as integer, y as integer, r as integer, r2 as integer)",
           fwd<&PC::setDonutSize, Px, Px, Px, Px>),
    method("set3D(depth as integer = -1, angle as double = -1, shadowMode as boolean = false)",
           fwd<&PC::set3D, PxAuto, Dbl, Bool>),
    method("set3D(depths() as double, angle as double = 45, shadowMode as boolean = false)",
           fwd<&PC::set3D2, PxDoubles, Dbl, Bool>),
    method("setData(data() as double, labels() as string)",
           fwd<&PC::setData, Doubles, Strings>),
    method("setData(data as VSArrayXPG, labels() as string)",
           fwd<&PC::setData, ArrayValues, Strings>),
    method("setStartAngle(startAngle as double, clockWise as boolean = true)",
           fwd<&PC::setStartAngle, Dbl, Bool>),
    method("setExplode(sectorNo as integer, distance as integer = -1)",
           fwd<&PC::setExplode, Int, PxAuto>),
    method("setExplodeGroup(startSector as integer, endSector as integer, "
           "distance as integer = -1)", fwd<&PC::setExplodeGroup, Int, Int, PxAuto>),
    method("setLabelFormat(formatString as string)", fwd<&PC::setLabelFormat, Str>),
    method("setLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002) as VSTextBoxXPG",
           fwd<&PC::setLabelStyle, Str, Dbl, Color>),
    method("setLabelStyle(font as string, fontSize as double, fontColor as color) "
           "as VSTextBoxXPG", fwd<&PC::setLabelStyle, Str, Dbl, ColorC>),
    method("setLabelPos(pos as integer, joinLineColor as integer = -1)",
           fwd<&PC::setLabelPos, LabelPos, Color>),
    method("setLabelPos(pos as integer, joinLineColor as color)",
           fwd<&PC::setLabelPos, LabelPos, ColorC>),
    method("setLabelLayout(layoutMethod as integer, pos as integer = -1, "
           "topBound as integer = -1, bottomBound as integer = -1)",
           fwd<&PC::setLabelLayout, Int, PxAuto, PxAuto, PxAuto>),
    method("setJoinLine(joinLineColor as integer, joinLineWidth as integer = -1)",
           fwd<&PC::setJoinLine, Color, PxAuto>),
    method("setJoinLine(joinLineColor as color, joinLineWidth as integer = -1)",
           fwd<&PC::setJoinLine, ColorC, PxAuto>),
    method("setLineColor(edgeColor as integer, joinLineColor as integer = -1)",
           fwd<&PC::setLineColor, Color, Color>),
    method("setLineColor(edgeColor as color, joinLineColor as integer = -1)",
           fwd<&PC::setLineColor, ColorC, Color>),
    method("setSectorStyle(shadingMethod as integer, edgeColor as integer = -1, "
           "edgeWidth as integer = -1)", fwd<&PC::setSectorStyle, Int, Color, PxAuto>),
    method("setSectorStyle(shadingMethod as integer, edgeColor as color, "
           "edgeWidth as integer = -1)", fwd<&PC::setSectorStyle, Int, ColorC, PxAuto>),
    method("sector(sectorNo as integer) as VSSectorXPG", fwd<&PC::sector, Int>),
};
// clang-format on

}  // namespace

const ClassTables kPieChartTables = derivedTables(tableOf(kMethods));
