#include "api/chart/CDrawObj.h"

#include "api/chart/ChartHandles.h"
#include "foundation/DrawObj.h"

using vistrel_api::E;

void CDrawObj_setZOrder(CDrawObj *o, int z) {
    if (o) E(o)->setZOrder(z);
}
int CDrawObj_getZOrder(CDrawObj *o) {
    return o ? E(o)->getZOrder() : 0;
}
