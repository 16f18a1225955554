#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "draw/pixel/ColorWords.h"
#include "tests/draw/list/MetaDrawTestSupport.h"

using namespace metadraw_test;

namespace {

struct PlayFixture : ::testing::Test {
    MetaDrawImpl *list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    RecordingBackEnd backEnd;
    ~PlayFixture() override { list->destroyList(); }
    std::vector<std::string> playFrom(int pos, int *reached = nullptr) {
        backEnd.calls.clear();
        int r = list->play(&backEnd, pos);
        if (reached) *reached = r;
        return backEnd.calls;
    }
};

using Calls = std::vector<std::string>;

}  // namespace

TEST_F(PlayFixture, EmptyListAndRepeatedPlays) {
    int reached = -1;
    EXPECT_EQ(playFrom(0, &reached), (Calls{"beginPlay 1", "endPlay"}));
    EXPECT_EQ(reached, 0);

    list->setSize(100, 50, 0xffffff);
    list->addLine(0xff, 1, 0, 0, 10, 0);  // pending lines are flushed by play
    EXPECT_EQ(playFrom(0, &reached), (Calls{"beginPlay 1", "setSize 100 50 16777215",
                                            "polyLine 255 1 0 0 10 0", "endPlay"}));
    EXPECT_EQ(reached, list->getEndPos());
    int again = -1;
    EXPECT_EQ(playFrom(reached, &again), (Calls{"beginPlay 1", "endPlay"}));
    EXPECT_EQ(again, reached);

    // Only the new records are played from the last position.
    list->line(1, 2, 3, 4, 5, 1);
    EXPECT_EQ(playFrom(reached, &again), (Calls{"beginPlay 1", "line 1 2 3 4 5 1", "endPlay"}));
    EXPECT_EQ(playFrom(0, nullptr), playFrom(0, nullptr));
    EXPECT_EQ(list->play(nullptr, 3), 3);
}

TEST_F(PlayFixture, BitmapScale) {
    list->setSize(100, 50, 0);
    list->line(1, 2, 3, 4, 5, 1);
    int reached = 0;
    playFrom(0, &reached);
    list->setOutputOptions("bmpscale=2");
    EXPECT_EQ(playFrom(reached), (Calls{})) << "a changed scale plays nothing";
    EXPECT_EQ(list->play(&backEnd, reached), 0);
    // Started again from 0 the scaling interpreter multiplies coordinates and widths.
    EXPECT_EQ(playFrom(0),
              (Calls{"beginPlay 2", "setSize 200 100 0", "line 2 4 6 8 5 2", "endPlay"}));
    list->setOutputOptions("bmpscale=1.5;dpi=192");
    EXPECT_EQ(playFrom(0)[0], "beginPlay 3");
    list->setOutputOptions("bmpscale=-1");
    EXPECT_EQ(playFrom(0)[0], "beginPlay 1");
}

TEST_F(PlayFixture, ScaleAreaLimit) {
    list->setOutputOptions("bmpscale=2");
    list->setSize(10000, 10000, 0);
    EXPECT_EQ(playFrom(0)[0], "beginPlay 1");
    list->setSize(4000, 4000, 0);  // 4000 * 2 * 4000 = 32000000, below 33554431
    EXPECT_EQ(playFrom(0)[0], "beginPlay 2");
    list->setSize(4097, 4096, 0);  // 33562624
    EXPECT_EQ(playFrom(0)[0], "beginPlay 1");
}

TEST_F(PlayFixture, ReentryIsRefused) {
    list->setSize(10, 10, 0);
    backEnd.reenter = list;
    playFrom(0);
    EXPECT_EQ(backEnd.reenterResult, 7);
}

TEST_F(PlayFixture, SymbolsTextsAndImages) {
    MetaDrawImpl *source = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->setSize(10, 20, 0);
    list->setSize(100, 100, 0);
    list->mergeScaled(source, 1, 2, 10, 20, 30);
    list->mergeScaled(source, 5, 6, 10, 20, 0);
    FakeText text;
    text.colors = {0, 0};
    list->drawText(&text, 0, 2, 7, 8, 0xff);
    static const int pixels[] = {1, 2, 3, 4, 5, 6};
    list->mergeBitMap(pixels, 6, 3, 40, 50);
    char *image = static_cast<char *>(std::malloc(3));
    std::memcpy(image, "PNG", 3);
    list->loadStream(image, 3, 0, 16, 8);
    list->setOutputOptions("bmpscale=2");
    std::string id = str(source->getId());
    Calls calls = playFrom(0);
    ASSERT_EQ(calls.size(), 11u);
    EXPECT_EQ(calls[2], "beginSymbol " + id);
    EXPECT_EQ(calls[3], "setSize 20 40 0") << "the symbol is played at the same scale";
    EXPECT_EQ(calls[4], "endSymbol " + id);
    EXPECT_EQ(calls[5], "mergeWithScaling " + id + " 2 4 20 40 30");
    EXPECT_EQ(calls[6], "mergeWithScaling " + id + " 10 12 20 40 0");
    EXPECT_EQ(calls[7], "drawText 0 2 14 16 255");
    EXPECT_EQ(calls[8].substr(0, 12), "mergeBitMap ");
    EXPECT_EQ(calls[8].substr(calls[8].size() - 11), " 6 3 80 100");
    EXPECT_EQ(calls[9].substr(calls[9].size() - 11), " PNG 0 16 8");
    list->destroyList();
    list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->destroyList();
}

TEST_F(PlayFixture, FrozenListIgnoresLaterRecords) {
    list->setSize(10, 10, 0);
    list->freeze();
    int end = list->getEndPos();
    list->line(0, 0, 1, 1, 1, 1);
    list->setSize(20, 20, 0);
    EXPECT_TRUE(list->isFrozen());
    EXPECT_EQ(list->getEndPos(), end);
    EXPECT_EQ(playFrom(0), (Calls{"beginPlay 1", "setSize 10 10 0", "endPlay"}));
    EXPECT_EQ(listingOf(list), "SetSize(10, 10, 0x000000)\n");
}

TEST_F(PlayFixture, RollbackRemovesSymbols) {
    MetaDrawImpl *source = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->setSize(10, 10, 0);
    EXPECT_EQ(list->rollback(&backEnd), 0) << "no mark";

    list->setSize(100, 100, 0);
    list->addLine(1, 1, 0, 0, 5, 5);
    int mark = list->markDynamicLayer();
    EXPECT_EQ(listingOf(list),
              "SetSize(100, 100, 0x000000)\nPolyLine(0x000001, 1, [0, 0, 5, 5])\n"
              "InitDynamicLayer()\n");
    EXPECT_EQ(mark, list->getEndPos() - 2);
    list->mergeScaled(source, 0, 0, 10, 10, 0);
    list->addLine(1, 1, 0, 0, 7, 7);

    backEnd.hasSnapshot = true;
    backEnd.calls.clear();
    EXPECT_EQ(list->rollback(&backEnd), mark);
    EXPECT_EQ(backEnd.calls, (Calls{"restoreSnapshot", "removeSymbol " + str(source->getId())}));
    EXPECT_EQ(list->getEndPos(), mark);
    EXPECT_EQ(listingOf(list),
              "SetSize(100, 100, 0x000000)\nPolyLine(0x000001, 1, [0, 0, 5, 5])\n");
    EXPECT_EQ(list->rollback(&backEnd), 0) << "the mark is cleared";

    // Merged again, the symbol is defined again.
    list->mergeScaled(source, 0, 0, 10, 10, 0);
    std::string id = str(source->getId());
    EXPECT_NE(listingOf(list).find("DefineSymbol(" + id +
                                   ")\nSetSize(10, 10, 0x000000)\n"
                                   "EndDefineSymbol(" +
                                   id + ")\n"),
              std::string::npos);

    // Without a snapshot the raster isn't told about the symbols.
    list->markDynamicLayer();
    FakeText text;
    text.colors = {0};
    list->drawText(&text, 0, 1, 0, 0, 0);
    backEnd.hasSnapshot = false;
    backEnd.calls.clear();
    list->rollback(&backEnd);
    EXPECT_EQ(backEnd.calls, (Calls{"restoreSnapshot"}));
    EXPECT_EQ(text.refs, 1);
    list->destroyList();
    list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->destroyList();
}
