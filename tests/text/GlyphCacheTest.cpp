#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "tests/draw/BoundedRun.h"
#include "tests/text/TextTestSupport.h"
#include "text/CanvasText.h"
#include "text/font/FontDriver.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"
#include "text/font/FontLock.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/cache/CanvasGlyphLimit.h"
#include "text/font/cache/GlyphCache.h"

namespace {

const char *const kFontDir = testFontDir();
const int kMode = 1;

// An item that notes its eviction and can refuse it.
struct FakeItem : GlyphCache::Item {
    FakeItem(GlyphCache *cache, std::vector<int> *log, int id) : cache(cache), log(log), id(id) {}
    ~FakeItem() override { cache->remove(this); }
    bool evict() override {
        if (refuse) return false;
        log->push_back(id);
        delete this;
        return true;
    }
    GlyphCache *cache;
    std::vector<int> *log;
    int id;
    bool refuse = false;
};

std::vector<unsigned char> pixelsOf(const FontGlyph *g) {
    return std::vector<unsigned char>(g->bitmap, g->bitmap + (size_t)g->pitch * g->rows);
}

}  // namespace

TEST(GlyphCache, DropsWhatNobodyHoldsOldestFirst) {
    GlyphCache cache(100);
    std::vector<int> evicted;
    FakeItem *a = new FakeItem(&cache, &evicted, 1), *b = new FakeItem(&cache, &evicted, 2),
             *c = new FakeItem(&cache, &evicted, 3);
    cache.add(a, 40);
    cache.add(b, 40);
    cache.idle(b);
    cache.idle(a);
    EXPECT_EQ(2, cache.getIdleCount());
    // a is used again: it leaves the queue.
    cache.busy(a);
    cache.add(c, 40);
    EXPECT_EQ(std::vector<int>({2}), evicted);
    EXPECT_EQ(80, cache.getBytes());
    // Held items stay whatever the total.
    FakeItem *d = new FakeItem(&cache, &evicted, 4);
    cache.add(d, 500);
    EXPECT_EQ(3, cache.getItemCount());
    // One that can't go yet is passed over, and trimming ends.
    cache.idle(c);
    c->refuse = true;
    cache.idle(a);
    cache.trim();
    EXPECT_EQ(std::vector<int>({2, 1}), evicted);
    EXPECT_EQ(1, cache.getIdleCount());
    c->refuse = false;
    // No budget: nothing goes.
    cache.setBudget(0);
    cache.idle(d);
    cache.trim();
    EXPECT_EQ(2, cache.getItemCount());
    delete c;
    delete d;
    EXPECT_EQ(0, cache.getBytes());
    EXPECT_EQ(0, cache.getIdleCount());
}

TEST(GlyphCache, SizesComeAndGoWithinTheBudget) {
    LibTTFFontDriver driver(kFontDir, "");
    GlyphCache &cache = driver.getGlyphCache();
    cache.setBudget(400000);
    FontLock lock;
    // A glyph a text holds outlives any number of sizes after it.
    FontFace *first = driver.openFace("arial.ttf", 0, 0, 30);
    first->addRef();
    FontGlyph *held = first->getGlyph('A', kMode);
    std::vector<unsigned char> heldPixels = pixelsOf(held);
    FontGlyph *dropped = first->getGlyph('B', kMode);
    std::vector<unsigned char> droppedPixels = pixelsOf(dropped);
    dropped->release();
    for (int i = 0; i < 300; ++i) {
        FontFace *f = driver.openFace(i % 2 ? "arial.ttf" : "times.ttf", 0, 0, 20 + 0.25 * i);
        f->addRef();
        for (const char *p = "Quarterly"; *p; ++p)
            if (FontGlyph *g = f->getGlyph(*p, kMode)) g->release();
        f->release();
        EXPECT_LE(cache.getBytes(), 400000 + 40000) << i;
    }
    // The faces went with their glyphs.
    EXPECT_LT(cache.getItemCount(), 300);
    EXPECT_EQ(held, first->getGlyph('A', kMode));
    EXPECT_EQ(heldPixels, pixelsOf(held));
    held->release();
    held->release();
    // Dropped and made again: the same picture.
    FontGlyph *again = first->getGlyph('B', kMode);
    EXPECT_EQ(droppedPixels, pixelsOf(again));
    again->release();
    first->release();

    // Fall-back lists are kept in the same budget: with room for a few dozen,
    // two hundred come and go.
    cache.setBudget(60000);
    for (int i = 0; i < 200; ++i) {
        FontFace *multi = driver.openFace("nosuch.ttf;?arial.ttf", 0, 0, 12 + 0.25 * i);
        ASSERT_NE(nullptr, multi);
        multi->addRef();
        if (FontGlyph *g = multi->getGlyph('x', kMode)) g->release();
        multi->release();
    }
    EXPECT_LT(driver.getFallbackListCount(), 150);
    EXPECT_LE(cache.getBytes(), 60000 + 2000);
}

TEST(GlyphCache, GlyphsLargerThanTheCanvasAreNotKept) {
    LibTTFFontDriver driver(kFontDir, "");
    GlyphCache &cache = driver.getGlyphCache();
    FontLock lock;
    FontFace *huge = driver.openFace("arial.ttf", 0, 0, 1000);
    huge->addRef();
    long long bytes = cache.getBytes();
    FontGlyph *w;
    {
        CanvasGlyphLimit canvas(400, 300);
        w = huge->getGlyph('W', kMode);
        ASSERT_NE(nullptr, w);
        EXPECT_GT(w->getPixelWidth(), 400);
        EXPECT_EQ(bytes, cache.getBytes());
        // Asked for again, it is made again.
        FontGlyph *second = huge->getGlyph('W', kMode);
        EXPECT_NE(w, second);
        EXPECT_EQ(pixelsOf(w), pixelsOf(second));
        second->release();
        // A small glyph is kept as ever.
        FontGlyph *dot = driver.openFace("arial.ttf", 0, 0, 10)->getGlyph('.', kMode);
        EXPECT_GT(cache.getBytes(), bytes);
        dot->release();
    }
    w->release();
    // A canvas not sized yet, or none, sets no limit.
    CanvasGlyphLimit unsized(1, 1);
    bytes = cache.getBytes();
    FontGlyph *kept = huge->getGlyph('W', kMode);
    EXPECT_GT(cache.getBytes(), bytes + 400 * 300);
    EXPECT_EQ(kept, huge->getGlyph('W', kMode));
    kept->release();
    kept->release();
    huge->release();
}

TEST(GlyphCache, ManyChartSizesInBoundedMemory) {
    // Each chart writes at a size of its own, from 150 to 180 points: kept for
    // ever, their glyphs would take some 230 MB.  (Glyphs are made when a text
    // is laid out; the charts need not be encoded.)
    long grownMiB = boundedRunMiB(
        []() {
            CanvasText::install();
            for (int i = 0; i < 600; ++i) {
                DrawArea *d = DrawArea::create();
                d->setSize(1600, 300, 0xFFFFFF);
                d->text4("Quarterly revenue", "arial.ttf", 0, 150 + 0.05 * i, 0, 0, false, 5, 5,
                         0x000000, 7);
                d->destroy();
            }
            FontLock lock;
            LibTTFFontDriver *driver = dynamic_cast<LibTTFFontDriver *>(FontDriver::getDriver());
            return driver && driver->getGlyphCache().getBytes() <= (64 << 20) + (4 << 20);
        },
        600, 3072);
    EXPECT_GE(grownMiB, 0) << "failed, ran out of memory or of time";
    EXPECT_LT(grownMiB, bounded_run::residentLimitMiB(160));
}

TEST(GlyphCache, HugeLettersPinNothingOnceDrawn) {
    // Sixteen letters at 4096 points, some 30 MB each, on a small canvas: kept,
    // they would take 450 MB; each needs about 100 MB while it is made.
    long grownMiB = boundedRunMiB(
        []() {
            CanvasText::install();
            for (int i = 0; i < 16; ++i) {
                DrawArea *d = DrawArea::create();
                d->setSize(400, 300, 0xFFFFFF);
                char letter[2] = {(char)('A' + i), 0};
                d->text4(letter, "arial.ttf", 0, 4096, 0, 0, false, 0, 0, 0x000000, 7);
                bool drawn = d->outBMP2().len > 0;
                d->destroy();
                if (!drawn) return false;
            }
            FontLock lock;
            LibTTFFontDriver *driver = dynamic_cast<LibTTFFontDriver *>(FontDriver::getDriver());
            return driver && driver->getGlyphCache().getBytes() < (1 << 20);
        },
        300, 2048);
    EXPECT_GE(grownMiB, 0) << "failed, ran out of memory or of time";
    EXPECT_LT(grownMiB, bounded_run::residentLimitMiB(300));
}
