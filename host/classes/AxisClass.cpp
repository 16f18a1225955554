// VSAxisXPG: the scale and the look of a chart axis.  No Constructor: axes come
// from their chart, which caches one object per standing axis (see
// ChartParts.h).  What an axis hands out (its title, label style and marks)
// holds the axis's chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using A = abc::Axis;

template <auto Method, class... Arg>
constexpr auto fwd = forward<AxisTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setLinearScale(lowerLimit as double, upperLimit as double, "
           "majorTickInc as double = 0, minorTickInc as double = 0)",
           fwd<&A::setLinearScale, Dbl, Dbl, Dbl, Dbl>),
    method("setLogScale(lowerLimit as double, upperLimit as double, "
           "majorTickInc as double = 0, minorTickInc as double = 0)",
           fwd<&A::setLogScale, Dbl, Dbl, Dbl, Dbl>),
    method("setDateScale(lowerLimit as double, upperLimit as double, "
           "majorTickInc as double = 0, minorTickInc as double = 0)",
           fwd<&A::setDateScale, Dbl, Dbl, Dbl, Dbl>),
    method("setLinearScale(lowerLimit as double, upperLimit as double, labels() as string)",
           fwd<&A::setLinearScale2, Dbl, Dbl, Strings>),
    method("setLogScale(lowerLimit as double, upperLimit as double, labels() as string)",
           fwd<&A::setLogScale2, Dbl, Dbl, Strings>),
    method("setDateScale(lowerLimit as double, upperLimit as double, labels() as string)",
           fwd<&A::setDateScale2, Dbl, Dbl, Strings>),
    method("setLinearScale(formatString as string = \"\")", fwd<&A::setLinearScale3, Str>),
    method("setLogScale(formatString as string = \"\")", fwd<&A::setLogScale3, Str>),
    method("setDateScale(formatString as string = \"\")", fwd<&A::setDateScale3, Str>),
    method("setAutoScale(topExtension as double = 0.1, bottomExtension as double = 0.1, "
           "zeroAffinity as double = 0.8)", fwd<&A::setAutoScale, Dbl, Dbl, Dbl>),
    method("setRounding(roundMin as boolean, roundMax as boolean)",
           fwd<&A::setRounding, Bool, Bool>),
    method("setTickDensity(majorTickSpacing as integer, minorTickSpacing as integer = -1)",
           fwd<&A::setTickDensity, PxAuto, PxAuto>),
    method("setMinTickInc(inc as double)", fwd<&A::setMinTickInc, Dbl>),
    method("setReverse(b as boolean = true)", fwd<&A::setReverse, Bool>),
    method("setMargin(topMargin as integer, bottomMargin as integer = 0)",
           fwd<&A::setMargin, Px, Px>),
    method("setIndent(indent as boolean)", fwd<&A::setIndent, Bool>),
    method("setLabelStep(majorTickStep as integer, minorTickStep as integer = 0, "
           "majorTickOffset as integer = 0, minorTickOffset as integer = -2147483647)",
           fwd<&A::setLabelStep, Int, Int, Int, Int>),
    method("syncAxis(axis as VSAxisXPG, slope as double = 1, intercept as double = 0)",
           fwd<&A::syncAxis, AxisObj, Dbl, Dbl>),
    method("syncScale(axis as VSAxisXPG = nil, slope as double = 1, intercept as double = 0)",
           fwd<&A::syncScale, AxisObj, Dbl, Dbl>),
    method("copyAxis(axis as VSAxisXPG)", fwd<&A::copyAxis, AxisObj>),
    method("setLabels(labels() as string)", fwd<&A::setLabels, Strings>),
    method("setLabels(values() as double, formatString as string = \"\")",
           fwd<&A::setLabels2, Doubles, Str>),
    method("setLabels(values as VSArrayXPG, formatString as string = \"\")",
           fwd<&A::setLabels2, ArrayValues, Str>),
    method("setLabelFormat(formatString as string)", fwd<&A::setLabelFormat, Str>),
    method("setMultiFormat(filter1 as integer, format1 as string, filter2 as integer, "
           "format2 as string, labelSpan as integer = 1, promoteFirst as boolean = true)",
           fwd<&A::setMultiFormat, Int, Str, Int, Str, Int, Bool>),
    method("setMultiFormat(filter as integer, format as string, labelSpan as integer = 1, "
           "promoteFirst as boolean = true)", fwd<&A::setMultiFormat2, Int, Str, Int, Bool>),
    method("setFormatCondition(condition as string, operand as double = 0)",
           fwd<&A::setFormatCondition, Str, Dbl>),
    method("addLabel(pos as double, label as string)", fwd<&A::addLabel, Dbl, Str>),
    method("getMinValue() as double", fwd<&A::getMinValue>),
    method("getMaxValue() as double", fwd<&A::getMaxValue>),
    method("getCoor(v as double) as double", fwd<&A::getCoor, Dbl>),
    method("getTicks() as double()", fwd<&A::getTicks>),
    method("getLabel(v as double) as string", fwd<&A::getLabel, Dbl>),
    method("getFormattedLabel(v as double, formatString as string = \"\") as string",
           fwd<&A::getFormattedLabel, Dbl, Str>),
    method("setColors(axisColor as integer, labelColor as integer = &hFFFF0002, "
           "titleColor as integer = -1, tickColor as integer = -1)",
           fwd<&A::setColors, Color, Color, Color, Color>),
    method("setColors(axisColor as color, labelColor as integer = &hFFFF0002, "
           "titleColor as integer = -1, tickColor as integer = -1)",
           fwd<&A::setColors, ColorC, Color, Color, Color>),
    method("setColors(axisColor as color, labelColor as color, titleColor as integer = -1, "
           "tickColor as integer = -1)", fwd<&A::setColors, ColorC, ColorC, Color, Color>),
    method("setTitle(text as string, font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002) as VSTextBoxXPG",
           fwd<&A::setTitle, Str, Str, Dbl, Color>),
    method("setTitle(text as string, font as string, fontSize as double, fontColor as color) "
           "as VSTextBoxXPG", fwd<&A::setTitle, Str, Str, Dbl, ColorC>),
    method("setTitlePos(alignment as integer, titleGap as integer = 3)",
           fwd<&A::setTitlePos, Int, Px>),
    method("setLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = &hFFFF0002, fontAngle as double = 0) as VSTextBoxXPG",
           fwd<&A::setLabelStyle, Str, Dbl, Color, Dbl>),
    method("setLabelStyle(font as string, fontSize as double, fontColor as color, "
           "fontAngle as double = 0) as VSTextBoxXPG",
           fwd<&A::setLabelStyle, Str, Dbl, ColorC, Dbl>),
    method("setLabelGap(d as integer)", fwd<&A::setLabelGap, Px>),
    method("setLabelAlignment(alignment as integer, minLabelSpace as integer = 3)",
           fwd<&A::setLabelAlignment, Int, Px>),
    method("setTickLength(majorTickLength as integer)", fwd<&A::setTickLength, Px>),
    method("setTickLength(majorTickLength as integer, minorTickLength as integer)",
           fwd<&A::setTickLength2, Px, Px>),
    method("setTickColor(majorTickColor as integer, minorTickColor as integer = -1)",
           fwd<&A::setTickColor, Color, Color>),
    method("setTickColor(majorTickColor as color, minorTickColor as integer = -1)",
           fwd<&A::setTickColor, ColorC, Color>),
    method("setTickColor(majorTickColor as color, minorTickColor as color)",
           fwd<&A::setTickColor, ColorC, ColorC>),
    method("setTickWidth(majorTickWidth as integer, minorTickWidth as integer = -1)",
           fwd<&A::setTickWidth, Px, PxAuto>),
    method("setWidth(width as integer)", fwd<&A::setWidth, Px>),
    method("setOffset(x as integer, y as integer)", fwd<&A::setOffset, Px, Px>),
    method("setTickOffset(offset as double)", fwd<&A::setTickOffset, Dbl>),
    method("setLabelOffset(offset as double)", fwd<&A::setLabelOffset, Dbl>),
    method("addMark(value as double, lineColor as integer, text as string = \"\", "
           "font as string = \"\", fontSize as double = 8) as VSMarkXPG",
           fwd<&A::addMark, Dbl, Color, Str, Str, Dbl>),
    method("addMark(value as double, lineColor as color, text as string = \"\", "
           "font as string = \"\", fontSize as double = 8) as VSMarkXPG",
           fwd<&A::addMark, Dbl, ColorC, Str, Str, Dbl>),
    method("addZone(startValue as double, endValue as double, colorValue as integer)",
           fwd<&A::addZone, Dbl, Dbl, Color>),
    method("addZone(startValue as double, endValue as double, colorValue as color)",
           fwd<&A::addZone, Dbl, Dbl, ColorC>),
    method("getAlignment() as integer", fwd<&A::getAlignment>),
};
// clang-format on

}  // namespace

const ClassTables kAxisTables = rootTables<ClassId::Axis, &AxisDestructor>(tableOf(kMethods));
