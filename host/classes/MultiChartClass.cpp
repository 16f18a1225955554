// VSMultiChartXPG: a chart made of other charts.  The charts it is given are
// kept in the block's child array, so that asking for one gives back the same
// host object and the child lives as long as the multi-chart.
#include "host/classes/ChartConstructor.h"
#include "host/classes/ClassTables.h"
#include "host/classes/LifetimeTables.h"
#include "host/glue/ChartFactories.h"
#include "host/glue/ChartParts.h"
#include "host/glue/ChartTargets.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using MC = abc::MultiChart;

template <auto Method, class... Arg>
constexpr auto fwd = forward<MultiChartTarget, Method, Arg...>;

template <class HostR, class Body>
HostR call(REALobject self, REALproc glue, Body &&body) {
    return callWrapper<MultiChartTarget, HostR>(self, glue, body);
}

// A chart that the multi-chart holds stays in the child array; the multi-chart
// itself is not kept there, which would keep it alive for ever.
void keepChild(REALobject self, REALobject chart) {
    if (chart && chart != self && ChartObj::in(chart))
        keepChildChart(*MultiChartTarget::block(self), chart);
}

void addChart(REALobject self, RBInteger x, RBInteger y, REALobject chart) {
    call<void>(self, procOf(addChart), [&](MC *m) {
        m->addChart(Px::in(x), Px::in(y), ChartObj::in(chart));
        keepChild(self, chart);
    });
}

void setMainChart(REALobject self, REALobject chart) {
    call<void>(self, procOf(setMainChart), [&](MC *m) {
        m->setMainChart(ChartObj::in(chart));
        keepChild(self, chart);
    });
}

// The host object the chart was given as; a chart placed by other means gets a
// new one that holds the multi-chart as its owner.
REALobject getChart(REALobject self, RBInteger index) {
    return call<REALobject>(self, procOf(getChart), [&](MC *m) -> REALobject {
        abc::BaseChart *chart = m->getChart(Int::in(index));
        if (!chart) return nullptr;
        if (chart == m) {
            lockRef(self);
            return self;
        }
        if (REALobject kept = findChildChart(*MultiChartTarget::block(self), chart)) return kept;
        return NewBaseChartXPG(chart, self, nullptr);
    });
}

// clang-format off
const MethodEntry kMethods[] = {
    method("Constructor(width as integer = 640, height as integer = 480, "
           "bgColor as integer = &hFFFF0000, edgeColor as integer = &hFF000000, "
           "raisedEffect as integer = 0)", constructChart<MultiChartTarget, &MC::create, Color>),
    method("Constructor(width as integer, height as integer, bgColor as color, "
           "edgeColor as integer = &hFF000000, raisedEffect as integer = 0)",
           constructChart<MultiChartTarget, &MC::create, ColorC>),
    method("addChart(x as integer, y as integer, c as VSBaseChartXPG)", addChart),
    method("getChart(i as integer = 0) as VSBaseChartXPG", getChart),
    method("getChartCount() as integer", fwd<&MC::getChartCount>),
    method("setMainChart(c as VSBaseChartXPG)", setMainChart),
};
// clang-format on

}  // namespace

const ClassTables kMultiChartTables = derivedTables(tableOf(kMethods));
