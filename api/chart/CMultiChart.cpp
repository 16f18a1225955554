#include "api/chart/CMultiChart.h"

#include "api/chart/ChartHandles.h"
#include "chart/base/MultiChart.h"

using vistrel_api::E;
using vistrel_api::H;

CMultiChart *CMultiChart_create(int width, int height, int bgColor, int edgeColor,
                                int raisedEffect) {
    return H(MultiChart::create(width, height, bgColor, edgeColor, raisedEffect));
}
CBaseChart *CMultiChart_toBaseChart(CMultiChart *m) {
    return m ? H(static_cast<BaseChart *>(E(m))) : nullptr;
}
CMultiChart *CMultiChart_fromBaseChart(CBaseChart *c) {
    return c ? H(dynamic_cast<MultiChart *>(E(c))) : nullptr;
}

void CMultiChart_addChart(CMultiChart *m, int x, int y, CBaseChart *chart) {
    if (m) E(m)->addChart(x, y, E(chart));
}
CBaseChart *CMultiChart_getChart(CMultiChart *m, int index) {
    return m ? H(E(m)->getChart(index)) : nullptr;
}
int CMultiChart_getChartCount(CMultiChart *m) {
    return m ? E(m)->getChartCount() : 0;
}
void CMultiChart_setMainChart(CMultiChart *m, CBaseChart *chart) {
    if (m) E(m)->setMainChart(E(chart));
}
int CMultiChart_getAbsOffsetX(CMultiChart *m, CBaseChart *chart) {
    return m ? E(m)->getAbsOffsetX(E(chart)) : 0;
}
int CMultiChart_getAbsOffsetY(CMultiChart *m, CBaseChart *chart) {
    return m ? E(m)->getAbsOffsetY(E(chart)) : 0;
}
