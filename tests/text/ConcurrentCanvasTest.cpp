#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "foundation/ArrayViews.h"
#include "tests/text/TextTestSupport.h"
#include "text/CanvasText.h"

namespace {

const char *const kFontDir = testFontDir();

DrawArea *makeLogo(int size, int color) {
    DrawArea *d = DrawArea::create();
    d->setSize(size, size, color);
    d->circle(size / 2.0, size / 2.0, size / 3.0, size / 3.0, 0x000000, 0xFFFFFF);
    return d;
}

// One thread's work: charts of its own, with texts at sizes of their own, a
// shared canvas as an image in mark-up and a font read from shared data.
bool renderCharts(int thread, int count) {
    for (int i = 0; i < count; ++i) {
        DrawArea *d = DrawArea::create();
        d->setSize(240, 160, 0xF0F0F0);
        std::vector<double> x, y;
        for (int k = 0; k < 200; ++k) {
            x.push_back(k * 1.2);
            y.push_back(80 + 60 * ((k * 37 + thread * 11 + i) % 17 - 8) / 8.0);
        }
        d->rawPolyline(DoubleArray(x.data(), 200), DoubleArray(y.data(), 200), 0x3366CC + thread,
                       1);
        double size = 8 + thread + 0.25 * i;
        d->text4("Revenue <*img=@/concurrent-logo,width=16*> by quarter", "arial.ttf", 0, size, 0,
                 0, false, 4, 4, 0x000000, 7);
        d->text4("Shared font", "@/concurrent-font", 0, size, 0, 30, false, 120, 120, 0x800000, 5);
        d->textBlock("a long label that wraps over several lines of the small chart", "times.ttf",
                     0, 9, 0, 0, 4, 60, 100, 3, 0x202020, 7);
        bool ok = d->outPNG2().len > 0 && DrawArea::getPixelLimit() > 0;
        d->destroy();
        if (!ok) return false;
    }
    return true;
}

}  // namespace

TEST(ConcurrentCanvas, ThreadsRenderTheirOwnCanvasesOverSharedResources) {
    CanvasText::install();
    std::string font = readFile(std::string(kFontDir) + "/LiberationSans-Bold.ttf");
    ASSERT_FALSE(font.empty());
    DrawArea::setGlobalResource("concurrent-font", font.data(), (int)font.size());
    DrawArea *logo = makeLogo(24, 0x00AA00);
    DrawArea::setGlobalDrawAreaResource("concurrent-logo", logo);
    logo->destroy();

    std::atomic<bool> stop{false};
    std::atomic<int> failures{0};
    // One thread keeps replacing the shared canvas while the others read it.
    std::thread replacer([&]() {
        for (int i = 0; !stop.load(); ++i) {
            DrawArea *next = makeLogo(16 + i % 16, 0x102030 * (i % 7));
            DrawArea::setGlobalDrawAreaResource("concurrent-logo", next);
            next->destroy();
            std::this_thread::yield();
        }
    });
    std::vector<std::thread> renderers;
    for (int t = 0; t < 4; ++t)
        renderers.emplace_back([&, t]() {
            if (!renderCharts(t, 12)) ++failures;
        });
    for (std::thread &r : renderers) r.join();
    stop = true;
    replacer.join();
    EXPECT_EQ(0, failures.load());

    DrawArea::setGlobalDrawAreaResource("concurrent-logo", nullptr);
    DrawArea::setGlobalResource("concurrent-font", nullptr, 0);
}
