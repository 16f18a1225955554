// VSLegendBoxXPG: the keys of a chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using L = abc::LegendBox;

template <auto Method, class... Arg>
constexpr auto fwd = forward<LegendBoxTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("addKey(text as string, colorValue as integer, lineWidth as integer = -1, "
           "drawarea as VSDrawAreaXPG = nil)", fwd<&L::addKey, Str, Color, PxAuto, Canvas>),
    method("addKey(text as string, colorValue as color, lineWidth as integer = -1, "
           "drawarea as VSDrawAreaXPG = nil)", fwd<&L::addKey, Str, ColorC, PxAuto, Canvas>),
    method("addKey(pos as integer, text as string, colorValue as integer, "
           "lineWidth as integer = -1, drawarea as VSDrawAreaXPG = nil)",
           fwd<&L::addKey2, Int, Str, Color, PxAuto, Canvas>),
    method("addKey(pos as integer, text as string, colorValue as color, "
           "lineWidth as integer = -1, drawarea as VSDrawAreaXPG = nil)",
           fwd<&L::addKey2, Int, Str, ColorC, PxAuto, Canvas>),
    method("addText(text as string)", fwd<&L::addText, Str>),
    method("addText(pos as integer, text as string)", fwd<&L::addText2, Int, Str>),
    method("setCols(noOfCols as integer)", fwd<&L::setCols, Int>),
    method("setReverse(b as boolean = true)", fwd<&L::setReverse, Bool>),
    method("setLineStyleKey(b as boolean = true)", fwd<&L::setLineStyleKey, Bool>),
    method("setKeySize(width as integer = -1, height as integer = -1, gap as integer = -1)",
           fwd<&L::setKeySize, PxAuto, PxAuto, PxAuto>),
    method("setKeySpacing(keySpacing as integer, lineSpacing as integer = -1)",
           fwd<&L::setKeySpacing, PxAuto, PxAuto>),
    method("setKeyBorder(edgeColor as integer, raisedEffect as integer = 0)",
           fwd<&L::setKeyBorder, Color, Int>),
    method("setKeyBorder(edgeColor as color, raisedEffect as integer = 0)",
           fwd<&L::setKeyBorder, ColorC, Int>),
    method("getImageCoor(dataItem as integer, offsetX as integer = 0, offsetY as integer = 0) "
           "as string", fwd<&L::getImageCoor2, Int, Px, Px>),
    method("getHTMLImageMap(url as string, queryFormat as string = \"\", "
           "extraAttr as string = \"\", offsetX as integer = 0, offsetY as integer = 0) "
           "as string", fwd<&L::getHTMLImageMap, Str, Str, Str, Px, Px>),
};
// clang-format on

}  // namespace

const ClassTables kLegendBoxTables = derivedTables(tableOf(kMethods));
