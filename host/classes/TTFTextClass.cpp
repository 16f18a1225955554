// VSTTFTextXPG: a laid-out text from a canvas's text().  No Constructor: texts
// come only from their canvas, which they keep alive as their owner.
#include "host/abc/TTFText.h"
#include "host/classes/ClassTables.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using Block = HandleBlock<abc::TTFText>;

struct TTFTextTarget {
    using Wrapper = abc::TTFText;
    static constexpr const char *kWord = "ttftext";
    static Wrapper *wrapperOf(REALobject self) {
        return blockOf<Block>(self, ClassId::TTFText)->handle;
    }
};

template <auto Method, class... Arg>
constexpr auto fwd = forward<TTFTextTarget, Method, Arg...>;

using T = abc::TTFText;

const MethodEntry kMethods[] = {
    method("getWidth() as integer", fwd<&T::getWidth>),
    method("getHeight() as integer", fwd<&T::getHeight>),
    method("getLineHeight() as integer", fwd<&T::getLineHeight>),
    method("getLineDistance() as integer", fwd<&T::getLineDistance>),
    method("getAscent() as integer", fwd<&T::getAscent>),
    method("getDescent() as integer", fwd<&T::getDescent>),
    method("draw(x as integer, y as integer, colorValue as integer, alignment as integer = 7)",
           fwd<&T::draw, Px, Px, Color, Int>),
    method("draw(x as integer, y as integer, colorValue as color, alignment as integer = 7)",
           fwd<&T::draw, Px, Px, ColorC, Int>),
};

}  // namespace

const ClassTables kTTFTextTables = {
    tableOf(kMethods),
    {nullptr, 0},
    {nullptr, 0},
    {nullptr, 0},
    {nullptr, 0},
    reinterpret_cast<REALproc>(&InitBlockOf<ClassId::TTFText>),
    reinterpret_cast<REALproc>(&DeleteWrapperOf<ClassId::TTFText, abc::TTFText>),
};
