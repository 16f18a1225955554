#include <cstring>
#include <vector>

#include "finance/ArrayMath.h"
#include "foundation/Constants.h"
#include "tests/host/HostTestSupport.h"

using simhost::D;
using simhost::I;

namespace {

std::vector<double> bytesAsDoubles(const std::string &bytes) {
    std::vector<double> v(bytes.size() / sizeof(double));
    memcpy(v.data(), bytes.data(), v.size() * sizeof(double));
    return v;
}

}  // namespace

TEST_F(HostTest, ArrayOperationsChainOnTheSameObject) {
    Value a = make("VSArrayXPG", {host->doubles({1, kNoValue, 3, 5})});
    Value same = call(a, "movAvg", {I(2)});
    EXPECT_EQ(a.ref.get(), same.ref.get());
    EXPECT_EQ((std::vector<double>{kNoValue, kNoValue, 2, 4}), host->doublesOf(call(a, "Values")));
    EXPECT_EQ(4, call(a, "count").i);
    EXPECT_EQ(2, call(a, "getValue", {I(2)}).d);
    EXPECT_EQ(kNoValue, call(a, "getValue", {I(-1)}).d);
    EXPECT_EQ(kNoValue, call(a, "getValue", {I(4)}).d);
    EXPECT_EQ((std::vector<double>{kNoValue, kNoValue, 2, 4}),
              bytesAsDoubles(host->bytesOf(call(a, "result"))));

    // shift() defaults to one place with gaps; shift(1, 0) fills with 0.
    Value b = make("VSArrayXPG", {host->doubles({1, 2, 3})});
    call(b, "shift");
    EXPECT_EQ((std::vector<double>{kNoValue, 1, 2}), host->doublesOf(call(b, "Values")));
    Value c = make("VSArrayXPG", {host->doubles({1, 2, 3})});
    call(c, "shift", {I(1), D(0)});
    EXPECT_EQ((std::vector<double>{0, 1, 2}), host->doublesOf(call(c, "Values")));

    // The select operations without a decision array test the array itself.
    Value s = make("VSArrayXPG", {host->doubles({-1, 2, 0})});
    call(s, "selectGTZ");
    EXPECT_EQ((std::vector<double>{0, 2, 0}), host->doublesOf(call(s, "Values")));
}

TEST_F(HostTest, ArraysCopyAndCombine) {
    Value a = make("VSArrayXPG", {host->doubles({1, 2, 3})});
    Value copy = make("VSArrayXPG", {a});
    call(copy, "addArray", {a});
    call(copy, "mulValue", {D(10)});
    EXPECT_EQ((std::vector<double>{20, 40, 60}), host->doublesOf(call(copy, "Values")));
    EXPECT_EQ((std::vector<double>{1, 2, 3}), host->doublesOf(call(a, "Values")));
    EXPECT_EQ(60, call(copy, "max").d);
    EXPECT_EQ(2, call(copy, "maxIndex").i);
    EXPECT_EQ(0, call(make("VSArrayXPG"), "count").i);

    // Groups of the key array reduce the source: per default the 50th percentile.
    Value keys = make("VSArrayXPG", {host->doubles({1, kNoValue, kNoValue, 4, kNoValue})});
    Value src = host->doubles({1, 2, 9, 4, 6});
    Value sums = call(keys, "aggregate", {src, I(kAggregateSum)});
    EXPECT_EQ("VSArrayXPG", host->className(sums));
    EXPECT_EQ((std::vector<double>{12, 10}), host->doublesOf(call(sums, "Values")));
    EXPECT_EQ((std::vector<double>{2, 5}),
              host->doublesOf(call(keys, "aggregateValues", {src, I(kAggregatePercentile)})));
    EXPECT_EQ((std::vector<double>{1, 2, 9, 4, 6}), host->doublesOf(src));
}

// A lowess with the declaration's smoothness equals one with it written out.
TEST_F(HostTest, ArrayDefaultsReachTheEngine) {
    std::vector<double> wave;
    for (int i = 0; i < 40; ++i) wave.push_back(i % 7 * 1.5 + i * 0.25);
    Value byDefault = make("VSArrayXPG", {host->doubles(wave)});
    Value written = make("VSArrayXPG", {host->doubles(wave)});
    call(byDefault, "lowess");
    call(written, "lowess", {D(0.25), I(0)});
    EXPECT_EQ(host->doublesOf(call(written, "Values")), host->doublesOf(call(byDefault, "Values")));

    double day = 86400, start = shared("chartTime", {I(2024), I(3), I(1)}).d;
    EXPECT_EQ(shared("chartTime", {I(2024), I(3), I(1), I(0), I(0), I(0)}).d, start);
    Value times =
        make("VSArrayXPG",
             {host->doubles({start + 3600, start + day / 2, start + day + 3600, start + 2 * day})});
    call(times, "selectStartOfDay");
    EXPECT_EQ((std::vector<double>{start + 3600, kNoValue, start + day + 3600, start + 2 * day}),
              host->doublesOf(call(times, "Values")));
}
