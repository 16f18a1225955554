// VSLineObjXPG: a line that a chart lays out, such as a mark's line.  No
// Constructor: it comes from its mark and holds the chart.
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"

using namespace glue;

namespace {

const MethodEntry kMethods[] = {
    method("getPoints() as double()", forward<LineObjTarget, &abc::LineObj::getPoints>),
};

}  // namespace

const ClassTables kLineObjTables = rootTables<ClassId::LineObj>(tableOf(kMethods));
