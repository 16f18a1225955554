// VSDrawObjXPG: anything a chart paints in z order.  No Constructor: drawing
// objects come from their chart, which they keep alive as their owner.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using DO = abc::DrawObj;

template <auto Method, class... Arg>
constexpr auto fwd = forward<DrawObjTarget, Method, Arg...>;

const MethodEntry kMethods[] = {
    method("setZOrder(z as integer)", fwd<&DO::setZOrder, Int>),
    method("getZOrder() as integer", fwd<&DO::getZOrder>),
};

}  // namespace

const ClassTables kDrawObjTables = rootTables<ClassId::DrawObj>(tableOf(kMethods));
