#include "host/abc/chart/MultiChart.h"

namespace abc {

MultiChart *MultiChart::create(int width, int height, int bgColor, int edgeColor,
                               int raisedEffect) {
    CMultiChart *m = CMultiChart_create(width, height, bgColor, edgeColor, raisedEffect);
    return m ? new MultiChart(m) : nullptr;
}

MultiChart *MultiChart::borrow(CMultiChart *handle) {
    return handle ? new MultiChart(handle, nullptr) : nullptr;
}

BaseChart *MultiChart::borrowChart(CBaseChart *handle) {
    if (CMultiChart *m = CMultiChart_fromBaseChart(handle)) return borrow(m);
    return BaseChart::borrow(handle);
}

BaseChart *MultiChart::find(const VSVector<BaseChart> &list, CBaseChart *handle) {
    for (int i = 0; i < list.size(); ++i)
        if (list.at(i)->getHandle() == handle) return list.at(i);
    return nullptr;
}

void MultiChart::addChart(int x, int y, BaseChart *chart) {
    CMultiChart_addChart(multi, x, y, handleOf(chart));
    if (chart && !find(given, chart->getHandle())) given.add(chart);
}

void MultiChart::setMainChart(BaseChart *chart) {
    CMultiChart_setMainChart(multi, handleOf(chart));
    if (chart && !find(given, chart->getHandle())) given.add(chart);
}

BaseChart *MultiChart::getChart(int index) {
    CBaseChart *h = CMultiChart_getChart(multi, index);
    if (!h) return nullptr;
    if (h == getHandle()) return this;
    if (BaseChart *known = find(given, h)) return known;
    if (BaseChart *known = find(borrowed, h)) return known;
    BaseChart *other = borrowChart(h);
    borrowed.add(other);
    return other;
}

void MultiChart::releaseCharts() {
    for (int i = 0; i < given.size(); ++i)
        if (given.at(i) != this) CBaseChart_setContainer(given.at(i)->getHandle(), nullptr);
}

}  // namespace abc
