#pragma once

#include <type_traits>

#include "host/abc/Views.h"
#include "host/glue/ChartFactories.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Debugging.h"
#include "host/glue/HostExceptions.h"
#include "host/glue/HostValues.h"
#include "host/glue/PartFactories.h"
#include "host/sdk/HostFunctions.h"

// The glue of a plain method, made from the wrapper's method and one argument
// form per parameter:
//   1. log the call when debugging,
//   2. reach the wrapper through the object's block, raising the not-initialized
//      exception when there is none,
//   3. convert the arguments, call the wrapper and convert the result, all
//      inside the guard that turns C++ exceptions into host exceptions.
//
// A Target names the wrapper of a class: using Wrapper, static Wrapper
// *wrapperOf(REALobject), and kWord, the class's word for the log.

template <class Target>
typename Target::Wrapper *reach(REALobject self, REALproc glue) {
    typename Target::Wrapper *w = self ? Target::wrapperOf(self) : nullptr;
    if (getDebugging()) LogMessage(glueName(glue), static_cast<const void *>(w));
    if (!w) RaiseNotInitialzed(Target::kWord);
    return w;
}

template <class R>
struct GlueResult;
template <>
struct GlueResult<void> {
    using Host = void;
};
template <>
struct GlueResult<int> {
    using Host = RBInteger;
    static Host out(int v) { return v; }
};
template <>
struct GlueResult<double> {
    using Host = double;
    static Host out(double v) { return v; }
};
template <>
struct GlueResult<bool> {
    using Host = RBBoolean;
    static Host out(bool v) { return v ? 1 : 0; }
};
template <>
struct GlueResult<const char *> {
    using Host = REALstring;
    static Host out(const char *v) { return newHostString(v); }
};
template <>
struct GlueResult<abc::DoubleArray> {
    using Host = REALarray;
    static Host out(abc::DoubleArray v) { return newHostDoubleArray(v); }
};
template <>
struct GlueResult<abc::IntArray> {
    using Host = REALarray;
    static Host out(abc::IntArray v) { return newHostIntArray(v); }
};
template <>
struct GlueResult<abc::MemBlock> {
    using Host = REALobject;
    static Host out(abc::MemBlock v) { return newHostMemoryBlock(v); }
};

template <class M>
struct WrapperMethod;
template <class W, class R, class... P>
struct WrapperMethod<R (W::*)(P...)> {
    using Result = R;
};

// Parts that an object hands out (a chart's titles, legend, canvas) become host
// objects that hold the object of the call as their owner, so that a part keeps
// its chart alive; a part of a chart's part holds the chart (Target::partOwner).
template <class R>
struct PartResult {
    static constexpr bool kIsPart = false;
};

template <class W, REALobject (*Factory)(W *, REALobject, REALobject)>
struct PartOf {
    static constexpr bool kIsPart = true;
    static REALobject out(W *part, REALobject owner) { return Factory(part, owner, nullptr); }
};

template <>
struct PartResult<abc::TextBox *> : PartOf<abc::TextBox, &NewTextBoxXPG> {};
template <>
struct PartResult<abc::LegendBox *> : PartOf<abc::LegendBox, &NewLegendBoxXPG> {};
template <>
struct PartResult<abc::VSLine *> : PartOf<abc::VSLine, &NewLineXPG> {};
template <>
struct PartResult<abc::VSMLTable *> : PartOf<abc::VSMLTable, &NewMLTableXPG> {};
template <>
struct PartResult<abc::DrawArea *> : PartOf<abc::DrawArea, &NewChartCanvasXPG> {};
template <>
struct PartResult<abc::Axis *> : PartOf<abc::Axis, &NewAxisXPG> {};
template <>
struct PartResult<abc::PlotArea *> : PartOf<abc::PlotArea, &NewPlotAreaXPG> {};
template <>
struct PartResult<abc::Layer *> : PartOf<abc::Layer, &NewLayerXPG> {};
template <>
struct PartResult<abc::BarLayer *> : PartOf<abc::BarLayer, &NewBarLayerXPG> {};
template <>
struct PartResult<abc::LineLayer *> : PartOf<abc::LineLayer, &NewLineLayerXPG> {};
template <>
struct PartResult<abc::ScatterLayer *> : PartOf<abc::ScatterLayer, &NewScatterLayerXPG> {};
template <>
struct PartResult<abc::AreaLayer *> : PartOf<abc::AreaLayer, &NewAreaLayerXPG> {};
template <>
struct PartResult<abc::DataSet *> : PartOf<abc::DataSet, &NewDataSetXPG> {};
template <>
struct PartResult<abc::Mark *> : PartOf<abc::Mark, &NewMarkXPG> {};
template <>
struct PartResult<abc::LineObj *> : PartOf<abc::LineObj, &NewLineObjXPG> {};
template <>
struct PartResult<abc::Sector *> : PartOf<abc::Sector, &NewSectorXPG> {};

// The owner of the parts an object hands out: the object, or what its target
// names.
template <class Target, class = void>
struct PartOwner {
    static REALobject of(REALobject self) { return self; }
};
template <class Target>
struct PartOwner<Target, std::void_t<decltype(&Target::partOwner)>> {
    static REALobject of(REALobject self) { return Target::partOwner(self); }
};

// A wrapper method that hands back its own wrapper (calls that chain) returns
// the host object itself, with a lock for the caller.
template <class Wrapper, class R,
          bool HostObject = std::is_same_v<R, Wrapper *> || PartResult<R>::kIsPart>
struct HostResultOf {
    using type = typename GlueResult<R>::Host;
};
template <class Wrapper, class R>
struct HostResultOf<Wrapper, R, true> {
    using type = REALobject;
};

template <class Target, auto Method, class... Arg>
struct Forward {
    using Wrapper = typename Target::Wrapper;
    using R = typename WrapperMethod<decltype(Method)>::Result;
    using HostR = typename HostResultOf<Wrapper, R>::type;

    static HostR glue(REALobject self, typename Arg::Host... args) {
        Wrapper *w = reach<Target>(self, reinterpret_cast<REALproc>(&glue));
        if (!w) return HostR();
        return guard<HostR>([&]() -> HostR {
            if constexpr (std::is_void_v<R>) {
                (w->*Method)(Arg::in(args)...);
            } else if constexpr (std::is_same_v<R, Wrapper *>) {
                if (!(w->*Method)(Arg::in(args)...)) return nullptr;
                REALLockObject(self);
                return self;
            } else if constexpr (PartResult<R>::kIsPart) {
                return PartResult<R>::out((w->*Method)(Arg::in(args)...),
                                          PartOwner<Target>::of(self));
            } else {
                return GlueResult<R>::out((w->*Method)(Arg::in(args)...));
            }
        });
    }
};

// The glue function of a wrapper method with its argument forms.
template <class Target, auto Method, class... Arg>
constexpr auto forward = &Forward<Target, Method, Arg...>::glue;

template <class F>
struct FunctionResult;
template <class R, class... P>
struct FunctionResult<R (*)(P...)> {
    using type = R;
};

// The glue of a shared method: no object, so nothing to reach.
template <auto Function, class... Arg>
struct ForwardShared {
    using R = typename FunctionResult<decltype(Function)>::type;
    using HostR = typename GlueResult<R>::Host;

    static HostR glue(typename Arg::Host... args) {
        if (getDebugging()) LogMessage(glueName(reinterpret_cast<REALproc>(&glue)));
        return guard<HostR>([&]() -> HostR {
            if constexpr (std::is_void_v<R>)
                Function(Arg::in(args)...);
            else
                return GlueResult<R>::out(Function(Arg::in(args)...));
        });
    }
};

template <auto Function, class... Arg>
constexpr auto forwardShared = &ForwardShared<Function, Arg...>::glue;

// The frame of a hand-written glue function: reach the wrapper (glue is the
// function itself, for the log) and run body(wrapper) inside the guard.
template <class Target, class HostR, class Body>
HostR callWrapper(REALobject self, REALproc glue, Body &&body) {
    typename Target::Wrapper *w = reach<Target>(self, glue);
    if (!w) return HostR();
    return guard<HostR>([&]() -> HostR { return body(w); });
}

template <class F>
REALproc procOf(F *function) {
    return reinterpret_cast<REALproc>(function);
}
