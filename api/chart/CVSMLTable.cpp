#include "api/chart/CVSMLTable.h"

#include "api/chart/ChartHandles.h"
#include "text/box/VSMLTable.h"

using vistrel_api::E;
using vistrel_api::H;

CDrawObj *CVSMLTable_toDrawObj(CVSMLTable *t) {
    return t ? H(static_cast<DrawObj *>(E(t))) : nullptr;
}
