// VSDataSetXPG: one series of a layer.  No Constructor: data sets come from
// their layer and hold its chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using DS = abc::DataSet;

template <auto Method, class... Arg>
constexpr auto fwd = forward<DataSetTarget, Method, Arg...>;

// The engine borrows the canvas: the chart keeps the host object alive.
void setDataSymbolCanvas(REALobject self, REALobject canvas) {
    callWrapper<DataSetTarget, void>(self, procOf(setDataSymbolCanvas), [&](DS *d) {
        d->setDataSymbol3(Canvas::in(canvas));
        keepForChart(blockOf<DataSetBlock>(self, ClassId::DataSet)->owner, d, "dataSymbol", canvas);
    });
}

// clang-format off
const MethodEntry kMethods[] = {
    method("setData(data() as double)", fwd<&DS::setData, Doubles>),
    method("setData(data as VSArrayXPG)", fwd<&DS::setData, ArrayValues>),
    method("getValue(i as integer) as double", fwd<&DS::getValue, Int>),
    method("getPosition(i as integer) as double", fwd<&DS::getPosition, Int>),
    method("setDataName(name as string)", fwd<&DS::setDataName, Str>),
    method("getDataName() as string", fwd<&DS::getDataName>),
    method("setDataColor(dataColor as integer, edgeColor as integer = -1, "
           "shadowColor as integer = -1, shadowEdgeColor as integer = -1)",
           fwd<&DS::setDataColor, Color, Color, Color, Color>),
    method("setDataColor(dataColor as color, edgeColor as integer = -1, "
           "shadowColor as integer = -1, shadowEdgeColor as integer = -1)",
           fwd<&DS::setDataColor, ColorC, Color, Color, Color>),
    method("setDataColor(dataColor as color, edgeColor as color, shadowColor as integer = -1, "
           "shadowEdgeColor as integer = -1)", fwd<&DS::setDataColor, ColorC, ColorC, Color, Color>),
    method("getDataColor() as integer", fwd<&DS::getDataColor>),
    method("setDataSymbol(symbol as integer, size as integer = 5, fillColor as integer = -1, "
           "edgeColor as integer = -1, lineWidth as integer = 1)",
           fwd<&DS::setDataSymbol, Int, Px, Color, Color, Px>),
    method("setDataSymbol(symbol as integer, size as integer, fillColor as color, "
           "edgeColor as integer = -1, lineWidth as integer = 1)",
           fwd<&DS::setDataSymbol, Int, Px, ColorC, Color, Px>),
    method("setDataSymbol(imageFile as string)", fwd<&DS::setDataSymbol2, Str>),
    method("setDataSymbol(symbol as VSDrawAreaXPG)", setDataSymbolCanvas),
    method("setDataSymbol(polygon() as integer, size as integer = 11, "
           "fillColor as integer = -1, edgeColor as integer = -1)",
           fwd<&DS::setDataSymbol4, Ints, Px, Color, Color>),
    method("setDataSymbol(polygon() as integer, size as integer, fillColor as color, "
           "edgeColor as integer = -1)", fwd<&DS::setDataSymbol4, Ints, Px, ColorC, Color>),
    method("setSymbolOffset(offsetX as integer, offsetY as integer)",
           fwd<&DS::setSymbolOffset, Px, Px>),
    method("getLegendIcon() as string", fwd<&DS::getLegendIcon>),
    method("setLineWidth(w as integer)", fwd<&DS::setLineWidth, Px>),
    method("setDataLabelFormat(formatString as string)", fwd<&DS::setDataLabelFormat, Str>),
    method("setDataLabelStyle(font as string = \"\", fontSize as double = 8, "
           "fontColor as integer = 0, fontAngle as double = 0) as VSTextBoxXPG",
           fwd<&DS::setDataLabelStyle, Str, Dbl, Color, Dbl>),
    method("setDataLabelStyle(font as string, fontSize as double, fontColor as color, "
           "fontAngle as double = 0) as VSTextBoxXPG",
           fwd<&DS::setDataLabelStyle, Str, Dbl, ColorC, Dbl>),
    method("setUseYAxis2(b as boolean = true)", fwd<&DS::setUseYAxis2, Bool>),
    method("setUseYAxis(a as VSAxisXPG)", fwd<&DS::setUseYAxis, AxisObj>),
    method("getUseYAxis() as VSAxisXPG", fwd<&DS::getUseYAxis>),
};
// clang-format on

}  // namespace

const ClassTables kDataSetTables =
    rootTables<ClassId::DataSet, &DataSetDestructor>(tableOf(kMethods));
