#include <gtest/gtest.h>

#include <random>

#include "host/classes/PluginEntry.h"
#include "host/glue/HostValues.h"
#include "host/glue/ScaleFactor.h"
#include "tests/host/simhost/SimHost.h"

using simhost::SimHost;
using simhost::Value;

namespace {

REALarray arrayOf(const Value &v) {
    return reinterpret_cast<REALarray>(v.ref.get());
}

}  // namespace

// The copy that fetches the element function once gives what item-by-item
// calls give, for any numbers, and scales pixel measures.
TEST(HostValues, ArrayCopiesAgreeWithItemByItemReads) {
    SimHost host(&pluginMain);
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> any(-1e6, 1e6);
    for (int n : {0, 1, 2, 1000}) {
        std::vector<double> items(n);
        for (double &v : items) v = any(rng);
        if (n > 1) items[1] = 1.7e308;
        Value array = host.doubles(items);
        std::vector<double> fast = RBDoubleArray(arrayOf(array)).items();
        EXPECT_EQ(readDoublesByItem(arrayOf(array)), fast);
        EXPECT_EQ(items, fast);
        RBDoubleArray copied(arrayOf(array));
        EXPECT_EQ(n, abc::DoubleArray(copied).len);
    }
    setScaleFactor(3);
    std::vector<double> scaled = RBDoubleArray(arrayOf(host.doubles({1.5, -2})), true).items();
    EXPECT_EQ((std::vector<double>{4.5, -6}), scaled);
    Value ints = host.integers({1, -1, 7});
    RBIntArray copied(arrayOf(ints), true);
    abc::IntArray pixels = copied;
    ASSERT_EQ(3, pixels.len);
    EXPECT_EQ(3, pixels.data[0]);
    EXPECT_EQ(-3, pixels.data[1]);
    EXPECT_EQ(21, pixels.data[2]);
    setScaleFactor(1);
    EXPECT_EQ(0, RBDoubleArray(nullptr).items().size());

    // Strings come back as UTF-8 and are let go.
    Value texts = host.strings({"a", "", "\xc3\xa9t\xc3\xa9"});
    RBStringArray textCopy(arrayOf(texts));
    abc::StringArray copy = textCopy;
    ASSERT_EQ(3, copy.len);
    EXPECT_STREQ("\xc3\xa9t\xc3\xa9", copy.data[2]);
    EXPECT_EQ(1, host.refCount(texts));
    simhost::Ref zero = simhost::Ref::adopt(
        &host, &host.newString(std::string("x\0y", 3), kREALTextEncodingUTF8)->header);
    EXPECT_EQ(std::string("x\0y", 3), RBText(reinterpret_cast<REALstring>(zero.get())).str());
    EXPECT_EQ("", RBText(nullptr).str());
    EXPECT_EQ(0, host.openStringData());
}
