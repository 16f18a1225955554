#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

#include "foundation/AutoDeletePtr.h"
#include "foundation/AutoFreeContainer.h"
#include "foundation/AutoMem.h"
#include "foundation/DrawObj.h"
#include "foundation/LongList.h"
#include "foundation/Mutex.h"
#include "foundation/Stream.h"

TEST(Streams, GrowthRuleAndTerminator) {
    qlx::ostrstream s;
    EXPECT_EQ(s.getCapacity(), 0);
    s << 'a';
    EXPECT_EQ(s.getCapacity(), 8000);
    std::vector<char> big(20000, 'x');
    s.write(big.data(), (int)big.size());
    EXPECT_EQ(s.getCapacity(), 28000);  // twice would not do: old capacity plus the size
    s.write("yz", 2);
    EXPECT_EQ(s.getCapacity(), 28000);
    std::vector<char> more(10000, 'w');
    s.write(more.data(), (int)more.size());
    EXPECT_EQ(s.getCapacity(), 56000);  // doubling is enough here
    int length = s.tell();
    EXPECT_EQ(length, 1 + 20000 + 2 + 10000);
    s.ensureNullTerminated();
    EXPECT_EQ(s.tell(), length);
    EXPECT_EQ(strlen(s.str()), (size_t)length);

    qlx::ostrstream t;
    t << (const char *)nullptr << "ab" << 'c';
    t.ensureNullTerminated();
    EXPECT_STREQ(t.str(), "abc");
    EXPECT_TRUE(t.ensureSize(10));
}

TEST(Streams, FileStreamOnUnopenableFileIsInert) {
    qlx::ofstream bad("/nonexistent-dir/x/y.bin");
    EXPECT_FALSE(bad.isOpen());
    bad << "text" << 'c';
    bad.write("abc", 3);
    bad.flush();
    EXPECT_EQ(bad.tell(), 0);
    EXPECT_TRUE(bad.ensureSize(100));

    std::string path = std::string(VISTREL_BINARY_DIR) + "/stream_test.bin";
    {
        qlx::ofstream good(path.c_str());
        ASSERT_TRUE(good.isOpen());
        good << "hello" << ' ';
        good.write("world", 5);
        EXPECT_EQ(good.tell(), 11);
    }
    FILE *f = fopen(path.c_str(), "rb");
    ASSERT_NE(f, nullptr);
    char text[32] = {};
    EXPECT_EQ(fread(text, 1, sizeof(text), f), 11u);
    fclose(f);
    EXPECT_STREQ(text, "hello world");
    remove(path.c_str());
}

namespace {

int liveObjects = 0;

class Probe : public DrawObj {
public:
    Probe(int z, int id) : id(id) {
        zOrder = z;
        ++liveObjects;
    }
    ~Probe() override { --liveObjects; }
    void release() override { delete this; }
    void paint(DrawArea *) override {}
    int id;
};

}  // namespace

TEST(Holders, StableZOrderAndOwnershipThroughSorting) {
    liveObjects = 0;
    {
        std::vector<qlx::AutoDeletePtr<DrawObj>> objects;
        const int z[] = {5, 1, 5, 0, 1, 5, 3, 0, 2, 5, 1, 1, 4, 0, 5, 2, 3, 3, 1, 0};
        for (int i = 0; i < 20; ++i) objects.push_back(new Probe(z[i], i));
        EXPECT_EQ(liveObjects, 20);
        std::stable_sort(
            objects.begin(), objects.end(),
            [](const qlx::AutoDeletePtr<DrawObj> &a, const qlx::AutoDeletePtr<DrawObj> &b) {
                return DrawObj::comparator(a.get(), b.get());
            });
        EXPECT_EQ(liveObjects, 20);
        for (size_t i = 1; i < objects.size(); ++i) {
            const Probe *a = static_cast<const Probe *>(objects[i - 1].get());
            const Probe *b = static_cast<const Probe *>(objects[i].get());
            ASSERT_LE(a->getZOrder(), b->getZOrder());
            if (a->getZOrder() == b->getZOrder()) {
                ASSERT_LT(a->id, b->id);
            }
        }
    }
    EXPECT_EQ(liveObjects, 0);

    std::vector<DrawObj *> plain;
    for (int i = 0; i < 6; ++i) plain.push_back(new Probe(i % 2, i));
    std::stable_sort(plain.begin(), plain.end(), DrawObj::comparator);
    EXPECT_EQ(static_cast<Probe *>(plain[0])->id, 0);
    EXPECT_EQ(static_cast<Probe *>(plain[3])->id, 1);
    for (DrawObj *o : plain) o->release();
    EXPECT_EQ(liveObjects, 0);

    {
        AutoFreeContainer<DrawObj> owned;
        owned[2] = new Probe(0, 0);
        owned[1] = nullptr;
        owned[7] = new Probe(0, 1);
    }
    EXPECT_EQ(liveObjects, 0);
}

TEST(Holders, ScratchMemoryAndDoubleEndedList) {
    qlx::AutoMem<double> mem;
    double *p = mem.get(100);
    EXPECT_EQ(mem.get(10), p);
    EXPECT_EQ(mem.getCapacity(), 100);
    mem.get(200);
    EXPECT_EQ(mem.getCapacity(), 200);

    LongList list;
    EXPECT_EQ(list.getCapacity(), 100);
    for (int i = 0; i < 50; ++i) list.push_front(-i);
    EXPECT_EQ(list.getFirst(), 0);
    list.push_front(-50);  // full at the front: doubles and re-centres
    EXPECT_EQ(list.getCapacity(), 200);
    EXPECT_EQ(list.size(), 51);
    EXPECT_EQ(list.getFirst(), (200 - 51) / 2 + 0);
    for (int i = 0; i < 300; ++i) list.push_back(i);
    ASSERT_EQ(list.size(), 351);
    EXPECT_EQ(list.front(), -50);
    EXPECT_EQ(list[50], 0);
    EXPECT_EQ(list.back(), 299);
}

TEST(Holders, UniqueIdsAcrossThreads) {
    std::vector<std::vector<long long>> ids(4);
    std::vector<std::thread> threads;
    for (auto &v : ids)
        threads.emplace_back([&v] {
            for (int i = 0; i < 2000; ++i) v.push_back(qlx::getUniqueId());
        });
    for (auto &t : threads) t.join();
    std::set<long long> all;
    for (auto &v : ids) all.insert(v.begin(), v.end());
    EXPECT_EQ(all.size(), 8000u);
    EXPECT_EQ(qlx::qlxMutex.getHolders(), 0);
}
