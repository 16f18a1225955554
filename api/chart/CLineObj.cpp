#include "api/chart/CLineObj.h"

#include "api/chart/ChartHandles.h"
#include "chart/axis/paint/LineObj.h"

using vistrel_api::E;
using vistrel_api::putView;

void CLineObj_getPoints(CLineObj *l, const double **data, int *len) {
    putView(l ? E(l)->getPoints() : DoubleArray(), data, len);
}
