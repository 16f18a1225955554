// VSAreaLayerXPG: a layer of areas filled between each data set's line and its
// base.  Its block is the layer's.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

using AL = abc::AreaLayer;

template <auto Method, class... Arg>
constexpr auto fwd = forward<AreaLayerTarget, Method, Arg...>;

const MethodEntry kMethods[] = {
    method("setMinLabelSize(s as integer)", fwd<&AL::setMinLabelSize, Px>),
    method("setGapColor(fillColor as integer)", fwd<&AL::setGapColor, Color>),
    method("setGapColor(fillColor as color)", fwd<&AL::setGapColor, ColorC>),
};

}  // namespace

const ClassTables kAreaLayerTables = derivedTables(tableOf(kMethods));
