// VSTextBoxXPG: a box with a text in it: titles, labels, free texts.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using T = abc::TextBox;

template <auto Method, class... Arg>
constexpr auto fwd = forward<TextBoxTarget, Method, Arg...>;

// clang-format off
const MethodEntry kMethods[] = {
    method("setText(text as string)", fwd<&T::setText, Str>),
    method("setAlignment(alignment as integer)", fwd<&T::setAlignment, Int>),
    method("setFontStyle(font as string, fontIndex as integer = 0)",
           fwd<&T::setFontStyle, Str, Int>),
    method("setFontSize(fontHeight as double, fontWidth as double = 0)",
           fwd<&T::setFontSize, Dbl, Dbl>),
    method("setFontAngle(angle as double, vertical as boolean = false)",
           fwd<&T::setFontAngle, Dbl, Bool>),
    method("setFontColor(colorValue as integer)", fwd<&T::setFontColor, Color>),
    method("setFontColor(colorValue as color)", fwd<&T::setFontColor, ColorC>),
    method("setMargin(m as integer)", fwd<&T::setMargin, PxAuto>),
    method("setMargin(leftMargin as integer, rightMargin as integer, topMargin as integer, "
           "bottomMargin as integer)", fwd<&T::setMargin2, PxAuto, PxAuto, PxAuto, PxAuto>),
    method("setWidth(width as integer)", fwd<&T::setWidth, Px>),
    method("setHeight(height as integer)", fwd<&T::setHeight, Px>),
    method("setMaxWidth(width as integer)", fwd<&T::setMaxWidth, Px>),
    method("setTruncate(maxWidth as integer, maxLines as integer = 1)",
           fwd<&T::setTruncate, Px, Int>),
};
// clang-format on

}  // namespace

const ClassTables kTextBoxTables = derivedTables(tableOf(kMethods));
