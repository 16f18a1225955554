// VSArrayXPG: the array calculator.  Operations that change the array return
// the object itself, so that calls chain.
#include <vector>

#include "host/abc/ArrayMath.h"
#include "host/abc/Chart.h"
#include "host/classes/ClassTables.h"
#include "host/glue/Factories.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

using Block = HandleBlock<abc::ArrayMath>;
using AM = abc::ArrayMath;

struct ArrayTarget {
    using Wrapper = AM;
    static constexpr const char *kWord = "arraymath";
    static Wrapper *wrapperOf(REALobject self) { return block(self)->handle; }
    static Block *block(REALobject self) { return blockOf<Block>(self, ClassId::Array); }
};

template <auto Method, class... Arg>
constexpr auto fwd = forward<ArrayTarget, Method, Arg...>;

template <class HostR, class Body>
HostR call(REALobject self, REALproc glue, Body &&body) {
    return callWrapper<ArrayTarget, HostR>(self, glue, body);
}

// The object itself, with a lock for the caller.
REALobject chained(REALobject self, AM *result) {
    if (!result) return nullptr;
    lockRef(self);
    return self;
}

void adopt(REALobject self, abc::DoubleArray values) {
    guard<void>([&] {
        Block *b = ArrayTarget::block(self);
        AM *made = AM::create(values);
        delete b->handle;
        b->handle = made;
    });
}

void construct(REALobject self) {
    adopt(self, {0, nullptr});
}
void constructFromValues(REALobject self, REALarray data) {
    guard<void>([&] { adopt(self, Doubles::in(data)); });
}
void constructFromArray(REALobject self, REALobject other) {
    adopt(self, ArrayValues::in(other));
}

REALobject shiftOnly(REALobject self, RBInteger offset) {
    return call<REALobject>(self, procOf(shiftOnly), [&](AM *a) {
        return chained(self, a->shift(Int::in(offset), abc::Chart::kNoValue));
    });
}

// The select operations without a decision array test the array itself.
template <AM *(AM::*Select)(abc::DoubleArray, double)>
REALobject selectSelf(REALobject self) {
    return call<REALobject>(self, procOf(selectSelf<Select>), [&](AM *a) {
        return chained(self, (a->*Select)({0, nullptr}, 0));
    });
}

REALobject resultBytes(REALobject self) {
    return call<REALobject>(self, procOf(resultBytes), [&](AM *a) {
        abc::DoubleArray r = a->result();
        return newHostMemoryBlock(
            {r.len * (int)sizeof(double), reinterpret_cast<const char *>(r.data)});
    });
}

double getValue(REALobject self, RBInteger index) {
    return call<double>(self, procOf(getValue), [&](AM *a) {
        abc::DoubleArray r = a->result();
        return index >= 0 && index < r.len ? r.data[index] : abc::Chart::kNoValue;
    });
}

RBInteger count(REALobject self) {
    return call<RBInteger>(self, procOf(count), [&](AM *a) { return a->result().len; });
}

// src reduced by this array's groups: a copy of src, cut to the new length.
std::vector<double> aggregated(AM *a, REALarray src, RBInteger method, double param) {
    std::vector<double> values = RBDoubleArray(src).items();
    int n = a->aggregate(values.data(), viewLength(values.size()), Int::in(method), param);
    values.resize(n < 0 ? 0 : n);
    return values;
}

REALobject aggregate(REALobject self, REALarray src, RBInteger method, double param) {
    return call<REALobject>(self, procOf(aggregate), [&](AM *a) {
        std::vector<double> values = aggregated(a, src, method, param);
        return NewArrayXPG(AM::create({viewLength(values.size()), values.data()}), nullptr,
                           nullptr);
    });
}

REALarray aggregateValues(REALobject self, REALarray src, RBInteger method, double param) {
    return call<REALarray>(self, procOf(aggregateValues), [&](AM *a) {
        std::vector<double> values = aggregated(a, src, method, param);
        return newHostDoubleArray({viewLength(values.size()), values.data()});
    });
}

// clang-format off
const MethodEntry kMethods[] = {
    method("Constructor()", construct),
    method("Constructor(data() as double)", constructFromValues),
    method("Constructor(a as VSArrayXPG)", constructFromArray),
    method("addArray(b() as double) as VSArrayXPG", fwd<&AM::add, Doubles>),
    method("addArray(b as VSArrayXPG) as VSArrayXPG", fwd<&AM::add, ArrayValues>),
    method("addValue(b as double) as VSArrayXPG", fwd<&AM::add2, Dbl>),
    method("subArray(b() as double) as VSArrayXPG", fwd<&AM::sub, Doubles>),
    method("subArray(b as VSArrayXPG) as VSArrayXPG", fwd<&AM::sub, ArrayValues>),
    method("subValue(b as double) as VSArrayXPG", fwd<&AM::sub2, Dbl>),
    method("mulArray(b() as double) as VSArrayXPG", fwd<&AM::mul, Doubles>),
    method("mulArray(b as VSArrayXPG) as VSArrayXPG", fwd<&AM::mul, ArrayValues>),
    method("mulValue(b as double) as VSArrayXPG", fwd<&AM::mul2, Dbl>),
    method("divArray(b() as double) as VSArrayXPG", fwd<&AM::div, Doubles>),
    method("divArray(b as VSArrayXPG) as VSArrayXPG", fwd<&AM::div, ArrayValues>),
    method("divValue(b as double) as VSArrayXPG", fwd<&AM::div2, Dbl>),
    method("financeDiv(b() as double, zeroByZeroValue as double) as VSArrayXPG",
           fwd<&AM::financeDiv, Doubles, Dbl>),
    method("shift(offset as integer = 1) as VSArrayXPG", shiftOnly),
    method("shift(offset as integer, fillValue as double) as VSArrayXPG",
           fwd<&AM::shift, Int, Dbl>),
    method("delta(offset as integer = 1) as VSArrayXPG", fwd<&AM::delta, Int>),
    method("rate(offset as integer = 1) as VSArrayXPG", fwd<&AM::rate, Int>),
    method("abs() as VSArrayXPG", fwd<&AM::abs>),
    method("acc() as VSArrayXPG", fwd<&AM::acc>),
    method("selectGTZ() as VSArrayXPG", selectSelf<&AM::selectGTZ>),
    method("selectGTZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectGTZ, Doubles, Dbl>),
    method("selectGEZ() as VSArrayXPG", selectSelf<&AM::selectGEZ>),
    method("selectGEZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectGEZ, Doubles, Dbl>),
    method("selectLTZ() as VSArrayXPG", selectSelf<&AM::selectLTZ>),
    method("selectLTZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectLTZ, Doubles, Dbl>),
    method("selectLEZ() as VSArrayXPG", selectSelf<&AM::selectLEZ>),
    method("selectLEZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectLEZ, Doubles, Dbl>),
    method("selectEQZ() as VSArrayXPG", selectSelf<&AM::selectEQZ>),
    method("selectEQZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectEQZ, Doubles, Dbl>),
    method("selectNEZ() as VSArrayXPG", selectSelf<&AM::selectNEZ>),
    method("selectNEZ(decisionArray() as double, fillValue as double = 0) as VSArrayXPG",
           fwd<&AM::selectNEZ, Doubles, Dbl>),
    method("selectStartOfSecond(majorTickStep as integer = 1, initialMargin as double = 0.1) "
           "as VSArrayXPG", fwd<&AM::selectStartOfSecond, Int, Dbl>),
    method("selectStartOfMinute(majorTickStep as integer = 1, initialMargin as double = 5.0) "
           "as VSArrayXPG", fwd<&AM::selectStartOfMinute, Int, Dbl>),
    method("selectStartOfHour(majorTickStep as integer = 1, initialMargin as double = 300.0) "
           "as VSArrayXPG", fwd<&AM::selectStartOfHour, Int, Dbl>),
    method("selectStartOfDay(majorTickStep as integer = 1, initialMargin as double = 10800.0) "
           "as VSArrayXPG", fwd<&AM::selectStartOfDay, Int, Dbl>),
    method("selectStartOfWeek(majorTickStep as integer = 1, "
           "initialMargin as double = 172800.0) as VSArrayXPG",
           fwd<&AM::selectStartOfWeek, Int, Dbl>),
    method("selectStartOfMonth(majorTickStep as integer = 1, "
           "initialMargin as double = 432000.0) as VSArrayXPG",
           fwd<&AM::selectStartOfMonth, Int, Dbl>),
    method("selectStartOfYear(majorTickStep as integer = 1, "
           "initialMargin as double = 5184000.0) as VSArrayXPG",
           fwd<&AM::selectStartOfYear, Int, Dbl>),
    method("selectRegularSpacing(majorTickStep as integer, minorTickStep as integer = 0, "
           "initialMargin as integer = 0) as VSArrayXPG",
           fwd<&AM::selectRegularSpacing, Int, Int, Int>),
    method("trim(startIndex as integer = 0, len as integer = -1) as VSArrayXPG",
           fwd<&AM::trim, Int, Int>),
    method("insert(value() as double, insertPoint as integer = -1) as VSArrayXPG",
           fwd<&AM::insert, Doubles, Int>),
    method("insert(value as double, len as integer, insertPoint as integer = -1) "
           "as VSArrayXPG", fwd<&AM::insert2, Dbl, Int, Int>),
    method("replace(a as double, b as double) as VSArrayXPG", fwd<&AM::replace, Dbl, Dbl>),
    method("movAvg(interval as integer) as VSArrayXPG", fwd<&AM::movAvg, Int>),
    method("expAvg(smoothingFactor as double) as VSArrayXPG", fwd<&AM::expAvg, Dbl>),
    method("movMed(interval as integer) as VSArrayXPG", fwd<&AM::movMed, Int>),
    method("movPercentile(interval as integer, percentile as double) as VSArrayXPG",
           fwd<&AM::movPercentile, Int, Dbl>),
    method("movMax(interval as integer) as VSArrayXPG", fwd<&AM::movMax, Int>),
    method("movMin(interval as integer) as VSArrayXPG", fwd<&AM::movMin, Int>),
    method("movStdDev(interval as integer) as VSArrayXPG", fwd<&AM::movStdDev, Int>),
    method("movCorr(interval as integer, b() as double) as VSArrayXPG",
           fwd<&AM::movCorr, Int, Doubles>),
    method("lowess(smoothness as double = 0.25, iteration as integer = 0) as VSArrayXPG",
           fwd<&AM::lowess, Dbl, Int>),
    method("lowess(values() as double, smoothness as double = 0.25, "
           "iteration as integer = 0) as VSArrayXPG", fwd<&AM::lowess2, Doubles, Dbl, Int>),
    method("result() as MemoryBlock", resultBytes),
    method("Values() as double()", fwd<&AM::result>),
    method("getValue(index as integer) as double", getValue),
    method("count() as integer", count),
    method("max() as double", fwd<&AM::max>),
    method("min() as double", fwd<&AM::min>),
    method("avg() as double", fwd<&AM::avg>),
    method("sum() as double", fwd<&AM::sum>),
    method("stdDev() as double", fwd<&AM::stdDev>),
    method("med() as double", fwd<&AM::med>),
    method("percentile(p as double) as double", fwd<&AM::percentile, Dbl>),
    method("maxIndex() as integer", fwd<&AM::maxIndex>),
    method("minIndex() as integer", fwd<&AM::minIndex>),
    method("aggregate(srcArray() as double, aggregateMethod as integer, "
           "param as double = 50.0) as VSArrayXPG", aggregate),
    method("aggregateValues(srcArray() as double, aggregateMethod as integer, "
           "param as double = 50.0) as double()", aggregateValues),
};
// clang-format on

}  // namespace

const ClassTables kArrayTables = {
    tableOf(kMethods),
    {nullptr, 0},
    {nullptr, 0},
    {nullptr, 0},
    {nullptr, 0},
    reinterpret_cast<REALproc>(&InitBlockOf<ClassId::Array>),
    reinterpret_cast<REALproc>(&DeleteWrapperOf<ClassId::Array, abc::ArrayMath>),
};
