#include <gtest/gtest.h>

#include <vector>

#include "host/abc/AutoDeleteContainer.h"
#include "host/abc/GarbageContainer.h"
#include "host/abc/UniqueObjContainer.h"
#include "host/abc/VSObject.h"

namespace {

std::vector<int> deleted;

class Tracked : public abc::VSObject {
public:
    explicit Tracked(int *handle) : handle(handle) {}
    ~Tracked() override { deleted.push_back(handle ? *handle : -1); }
    int *getHandle() const { return handle; }

private:
    int *handle;
};

}  // namespace

TEST(AbcContainers, VectorGrowsAndSkipsNull) {
    abc::VSVector<Tracked> v;
    v.add(nullptr);
    EXPECT_EQ(0, v.size());
    EXPECT_EQ(0, v.getCapacity());
    std::vector<Tracked> items;
    items.reserve(21);
    for (int i = 0; i < 21; ++i) items.emplace_back(nullptr);
    for (int i = 0; i < 10; ++i) v.add(&items[i]);
    EXPECT_EQ(10, v.getCapacity());
    v.add(&items[10]);
    EXPECT_EQ(20, v.getCapacity());
    for (int i = 11; i < 21; ++i) v.add(&items[i]);
    EXPECT_EQ(40, v.getCapacity());
    EXPECT_EQ(&items[20], v.at(20));
    EXPECT_EQ(nullptr, v.at(21));
    deleted.clear();
}

TEST(AbcContainers, OwnersDeleteInIndexOrder) {
    int a = 1, b = 2, c = 3;
    deleted.clear();
    {
        abc::UniqueObjContainer<Tracked> unique;
        Tracked *first = unique.get(&a);
        EXPECT_EQ(first, unique.get(&a));
        EXPECT_EQ(1, unique.size());
        EXPECT_NE(first, unique.get(&b));
        EXPECT_EQ(nullptr, unique.get(static_cast<int *>(nullptr)));
        EXPECT_EQ(2, unique.size());
        unique.get(&c);
    }
    EXPECT_EQ((std::vector<int>{1, 2, 3}), deleted);

    deleted.clear();
    {
        abc::GarbageContainer garbage;
        Tracked *t = garbage.addGarbage(new Tracked(&c));
        EXPECT_EQ(&c, t->getHandle());
        garbage.addGarbage(new Tracked(&a));
        garbage.addGarbage<Tracked>(nullptr);
        EXPECT_EQ(2, garbage.garbageCount());
    }
    EXPECT_EQ((std::vector<int>{3, 1}), deleted);
}

// A maker gives the wrapper of a new handle; a known handle keeps its wrapper.
// keepOnce finds a kept wrapper by its handle among wrappers of other kinds.
TEST(AbcContainers, WrappersMadeOnceByMakerOrKind) {
    int a = 1, b = 2;
    deleted.clear();
    {
        abc::UniqueObjContainer<Tracked> unique;
        int made = 0;
        auto maker = [&made](int *h) {
            ++made;
            return new Tracked(h);
        };
        Tracked *first = unique.get(&a, maker);
        EXPECT_EQ(first, unique.get(&a, maker));
        EXPECT_EQ(first, unique.get(&a));
        EXPECT_EQ(first, unique.find(&a));
        EXPECT_EQ(nullptr, unique.find(&b));
        EXPECT_EQ(nullptr, unique.get(static_cast<int *>(nullptr), maker));
        EXPECT_EQ(1, made);

        abc::GarbageContainer garbage;
        garbage.addGarbage(new abc::VSObject());
        Tracked *kept = garbage.keepOnce(&b, &Tracked::getHandle);
        EXPECT_EQ(kept, garbage.keepOnce(&b, &Tracked::getHandle));
        EXPECT_NE(kept, garbage.keepOnce(&a, &Tracked::getHandle));
        EXPECT_EQ(nullptr, garbage.keepOnce(static_cast<int *>(nullptr), &Tracked::getHandle));
        EXPECT_EQ(3, garbage.garbageCount());
    }
    EXPECT_EQ((std::vector<int>{2, 1, 1}), deleted);
}
