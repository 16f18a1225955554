#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"

namespace {

// Width and height from a PNG's header, (0, 0) when the block is no PNG.
std::pair<long, long> pngSize(MemBlock png) {
    if (png.len < 24 || memcmp(png.data, "\x89PNG", 4) != 0) return {0, 0};
    auto word = [&](int at) {
        const unsigned char *p = (const unsigned char *)png.data + at;
        return (long)p[0] << 24 | p[1] << 16 | p[2] << 8 | p[3];
    };
    return {word(16), word(20)};
}

std::string loaded(DrawArea *d, const char *path) {
    int n = 0;
    char *data = d->loadFile(path, 0, &n);
    std::string s(data ? data : "", data ? n : 0);
    free(data);
    return s;
}

}  // namespace

TEST(DrawAreaLimits, NoOutputOfAnotherSizeThanTheCanvasSays) {
    CanvasHolder c;
    // Beyond any raster: every pixel operation fails instead of using a 1 by 1 stand-in.
    c->setSize(100000, 100000, 0xFFFFFF);
    c->line(0, 0, 99999, 99999, 0x000000, 1);
    EXPECT_EQ(100000, c->getWidth());
    EXPECT_EQ(0, c->outPNG2().len);
    EXPECT_EQ(0, c->outBMP2().len);
    EXPECT_EQ(0, c->outAlpha2().len);
    EXPECT_FALSE(c->outPNG("/tmp/vistrel-limits-never-written.png"));
    EXPECT_EQ(kTransparent, c->getPixel(0, 0));
    EXPECT_EQ(nullptr, c->getRaster());

    // Beyond the default pixel limit (125,000,000) though a buffer could hold it.
    c->setSize(12000, 12000, 0xFFFFFF);
    EXPECT_EQ(0, c->outPNG2().len);

    // A shadow that grows the canvas past any size.
    c->setSize(100, 100, 0xFFFFFF);
    EXPECT_EQ(std::make_pair(100L, 100L), pngSize(c->outPNG2()));
    c->setBgDropShadow(0x80000000, 5, 5, INT_MAX / 2);
    EXPECT_EQ(INT_MAX, c->getWidth());
    EXPECT_EQ(0, c->outPNG2().len);

    // A new size makes the canvas whole again.
    c->setSize(7, 5, 0xFFFFFF);
    EXPECT_EQ(std::make_pair(7L, 5L), pngSize(c->outPNG2()));
}

TEST(DrawAreaLimits, ShadowGrowsTheImageAsItGrowsTheCanvas) {
    const struct {
        int offsetX, offsetY, blur;
    } cases[] = {{5000, 0, 0}, {0, -4500, 3}, {3, 0, -5}, {-2, 7, -1}, {5, 5, 5}};
    for (auto &k : cases) {
        CanvasHolder c;
        c->setSize(10, 10, 0x000000);
        c->setBgDropShadow(0x80000000, k.offsetX, k.offsetY, k.blur);
        EXPECT_EQ(std::make_pair((long)c->getWidth(), (long)c->getHeight()), pngSize(c->outPNG2()))
            << k.offsetX << " " << k.offsetY << " " << k.blur;
    }
}

TEST(DrawAreaLimits, SharedCanvasOutlivesItsReplacement) {
    CanvasHolder c;
    DrawArea *first = DrawArea::create();
    first->setSize(3, 2, 0xFF0000);
    DrawArea::setGlobalDrawAreaResource("limits-shared", first);
    DrawArea *held = c->getDrawAreaResource("limits-shared");
    EXPECT_EQ(first, held);
    EXPECT_EQ(first, c->getDrawAreaResource("limits-shared"));
    // The entry and its creator let go; the canvas that handed it out still holds it.
    DrawArea *second = DrawArea::create();
    second->setSize(4, 4, 0x00FF00);
    DrawArea::setGlobalDrawAreaResource("limits-shared", second);
    first->destroy();
    EXPECT_EQ(3, held->getWidth());
    EXPECT_EQ(std::make_pair(3L, 2L), pngSize(held->outPNG2()));
    EXPECT_EQ(second, c->getDrawAreaResource("limits-shared"));
    std::string png = loaded(c.get(), "@/limits-shared");
    EXPECT_EQ(std::make_pair(4L, 4L), pngSize(MemBlock(png.data(), (int)png.size())));
    DrawArea::setGlobalDrawAreaResource("limits-shared", nullptr);
    second->destroy();
    EXPECT_EQ("", loaded(c.get(), "@/limits-shared"));
}

TEST(DrawAreaLimits, SharedCanvasReplacedWhileOthersReadIt) {
    // Readers load the shared canvas as an image while one thread replaces it.
    std::atomic<bool> stop{false};
    std::atomic<int> reads{0}, bad{0};
    auto reader = [&]() {
        while (!stop.load()) {
            DrawArea *d = DrawArea::create();
            std::string png = loaded(d, "@/limits-race");
            std::pair<long, long> size = pngSize(MemBlock(png.data(), (int)png.size()));
            if (!png.empty() && (size.first < 1 || size.first != size.second)) ++bad;
            if (DrawArea *shared = d->getDrawAreaResource("limits-race"))
                if (shared->getWidth() != shared->getHeight()) ++bad;
            d->destroy();
            ++reads;
        }
    };
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) readers.emplace_back(reader);
    for (int i = 0; i < 300 || reads.load() < 100; ++i) {
        DrawArea *d = DrawArea::create();
        d->setSize(8 + i % 5, 8 + i % 5, 0x102030 * (i % 7));
        d->line(0, 0, 8, 8, 0xFFFFFF, 1);
        DrawArea::setGlobalDrawAreaResource("limits-race", d);
        d->destroy();
    }
    stop = true;
    for (std::thread &t : readers) t.join();
    DrawArea::setGlobalDrawAreaResource("limits-race", nullptr);
    EXPECT_EQ(0, bad.load());
}
