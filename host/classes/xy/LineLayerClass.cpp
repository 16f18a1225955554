// VSLineLayerXPG: a layer of lines through the points, with symbols and labels
// at them.  Its block is the layer's; a scatter layer is one too.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using LL = abc::LineLayer;

template <auto Method, class... Arg>
constexpr auto fwd = forward<LineLayerTarget, Method, Arg...>;

// Symbol sizes in pixels take the ScaleFactor; lengths along an axis are data.
RBDoubleArray symbolSizes(REALarray sizes, RBInteger scaleType) {
    const RBInteger kPixelScale = 0;
    return RBDoubleArray(sizes, scaleType == kPixelScale);
}

void setSymbolScale(REALobject self, REALarray zDataX, RBInteger scaleTypeX, REALarray zDataY,
                    RBInteger scaleTypeY) {
    callWrapper<LineLayerTarget, void>(self, procOf(setSymbolScale), [&](LL *l) {
        l->setSymbolScale(symbolSizes(zDataX, scaleTypeX), (int)scaleTypeX,
                          symbolSizes(zDataY, scaleTypeY), (int)scaleTypeY);
    });
}

void setSymbolScale2(REALobject self, REALarray zData, RBInteger scaleType) {
    callWrapper<LineLayerTarget, void>(self, procOf(setSymbolScale2), [&](LL *l) {
        l->setSymbolScale2(symbolSizes(zData, scaleType), (int)scaleType);
    });
}

// clang-format off
const MethodEntry kMethods[] = {
    method("setGapColor(lineColor as integer, lineWidth as integer = -1)",
           fwd<&LL::setGapColor, Color, PxAuto>),
    method("setGapColor(lineColor as color, lineWidth as integer = -1)",
           fwd<&LL::setGapColor, ColorC, PxAuto>),
    method("setFastLineMode(b as boolean = true)", fwd<&LL::setFastLineMode, Bool>),
    method("setImageMapWidth(width as integer)", fwd<&LL::setImageMapWidth, Px>),
    method("setSymbolScale(zDataX() as double, scaleTypeX as integer, zDataY() as double, "
           "scaleTypeY as integer = 0)", setSymbolScale),
    method("setSymbolScale(zData() as double, scaleType as integer = 0)", setSymbolScale2),
    method("getLine(dataSet as integer = 0) as VSLineObjXPG", fwd<&LL::getLine, Int>),
};
// clang-format on

}  // namespace

const ClassTables kLineLayerTables = derivedTables(tableOf(kMethods));
