#include <gtest/gtest.h>

#include <string>

#include "draw/canvas/DrawAreaImpl.h"
#include "draw/list/MetaDraw.h"
#include "draw/pixel/ColorWords.h"
#include "draw/raster/DrawBMPImpl.h"
#include "foundation/Constants.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"

namespace {

int countOf(const std::string &text, const std::string &what) {
    int n = 0;
    for (size_t pos = text.find(what); pos != std::string::npos; pos = text.find(what, pos + 1))
        ++n;
    return n;
}

// Counts what a replay hands to the raster.
struct CountingRaster : DrawBMPImpl {
    static int created;
    int sizes = 0, polyLines = 0, rects = 0;
    explicit CountingRaster(MetaDraw *list) : DrawBMPImpl(list, nullptr) { ++created; }
    void setSize(int w, int h, int bg) override {
        ++sizes;
        DrawBMPImpl::setSize(w, h, bg);
    }
    void polyLine(int color, int width, DoubleArray xy) override {
        ++polyLines;
        DrawBMPImpl::polyLine(color, width, xy);
    }
    void roundedRect(double x1, double y1, double x2, double y2, int r, int edge,
                     int fill) override {
        ++rects;
        DrawBMPImpl::roundedRect(x1, y1, x2, y2, r, edge, fill);
    }
};
int CountingRaster::created = 0;

// A canvas whose rasters count.
class CountingCanvas : public DrawAreaImpl {
public:
    DrawBMP *createRaster() override { return new CountingRaster(getMetaDraw()); }
};

// A counting canvas that is released at the end of the test.
struct CountingHolder {
    DrawArea *canvas = new CountingCanvas();
    ~CountingHolder() { canvas->destroy(); }
    DrawArea *operator->() const { return canvas; }
    DrawArea *get() const { return canvas; }
};

}  // namespace

TEST(DrawAreaRecording, SizeAndClip) {
    CanvasHolder c;
    c->setSize(0, -3, 0xffffff);
    EXPECT_EQ(1, c->getWidth());
    EXPECT_EQ(1, c->getHeight());
    int l, t, r, b;
    c->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(0, l + t + r + b);
    EXPECT_EQ("SetSize(1, 1, 0xffffff)\n", listingOf(c.get()));

    c->setSize(100, 50, kTransparent);
    c->setClipRect(-5, 3, 500, 500);
    c->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(0, l);
    EXPECT_EQ(3, t);
    EXPECT_EQ(99, r);
    EXPECT_EQ(49, b);
    c->resize(0, 20, 1, 1.0);
    EXPECT_EQ(1, c->getWidth());
    c->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(19, b);
    EXPECT_EQ(
        "SetSize(1, 1, 0xffffff)\nSetSize(100, 50, Chart.Transparent)\n"
        "SetClipRect(0, 3, 99, 49)\nResize(1, 20)\n",
        listingOf(c.get()));
}

TEST(DrawAreaRecording, LineCulling) {
    CanvasHolder c;
    c->setSize(100, 50, 0xffffff);
    c->line(-5, 10, -1, 40, 0, 1);    // left of the canvas
    c->line(10, -5, 40, -0.5, 0, 1);  // above
    c->line(100, 10, 120, 40, 0, 1);  // right
    c->line(10, 50, 40, 70, 0, 1);    // below
    c->line(10, 10, 20, 20, kTransparent, 1);
    c->line(10, 10, 20, 20, 0x123456, 0);
    c->line(10, 10, 20, kNoValue, 0x123456, 1);
    EXPECT_EQ("SetSize(100, 50, 0xffffff)\n", listingOf(c.get()));

    // Crossing the canvas is drawn even with both ends outside; a width is capped.
    c->line(-5, 10, 120, 10, 0x123456, 1);
    c->line(120, 10, 130, 20, 0x123456, 1);  // continues the batch: the end is outside
    c->line(10, 0, 10, 49, 0xff, 500);
    c->hline(3, 7, 9, 0xff);
    EXPECT_EQ(
        "SetSize(100, 50, 0xffffff)\n"
        "PolyLine(0x123456, 1, [-5, 10, 120, 10])\n"
        "PolyLine(0x0000ff, 100, [10, 0, 10, 49])\n"
        "PolyLine(0x0000ff, 1, [3, 9, 7, 9])\n",
        listingOf(c.get()));
}

TEST(DrawAreaRecording, RectanglesAndBackground) {
    CanvasHolder c;
    c->setSize(100, 50, 0xffffff);
    c->rect(1, 2, 30, 40, 0xff0000, 0x00ff00, 0);
    const int radius[4] = {1, 2, 3, 4};
    const int edges[4] = {0xff0000, 0xff0000, 0xff0000, 0xff0000};
    c->roundedRect(1, 2, 30, 40, radius, edges, 0x0000ff);
    const int same[4] = {5, 5, 5, 5};
    c->roundedRect(1, 2, 30, 40, same, edges, 0x0000ff);
    c->setBgRoundedClip(-1, 0, -7, 0, 0xffffff);  // all zero: nothing
    c->setBgRoundedClip(10, -1, 3, 0, 0xffffff);
    EXPECT_EQ(
        "SetSize(100, 50, 0xffffff)\n"
        "RoundedRect(1, 2, 30, 40, 0, 0xff0000, 0x00ff00)\n"
        "MultiRoundedRect(1, 2, 30, 40, 1, 2, 3, 4, 0xff0000, 0xff0000, 0xff0000, "
        "0xff0000, 0x0000ff)\n"
        "RoundedRect(1, 2, 30, 40, 5, 0xff0000, 0x0000ff)\n"
        "SetBgRoundedClip(10, 0, 3, 0, 0xffffff)\n",
        listingOf(c.get()));
}

TEST(DrawAreaRecording, DropShadowGrowsTheCanvas) {
    CanvasHolder c;
    c->setSize(100, 100, 0xffffff);
    c->setClipRect(10, 10, 20, 20);
    c->setBgDropShadow(0xaaaaaa, 5, 0, 5);
    EXPECT_EQ(110, c->getWidth());   // 10 + 0 in x
    EXPECT_EQ(110, c->getHeight());  // 5 + 5 in y
    int l, t, r, b;
    c->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(0, l);
    EXPECT_EQ(109, r);
    c->setBgDropShadow(0xaaaaaa, -30, 2, 0);
    EXPECT_EQ(140, c->getWidth());
    EXPECT_EQ(112, c->getHeight());
    c->setSize(1, 1, 0);
    c->setBgDropShadow(0, 0, 0, -5);
    EXPECT_EQ(1, c->getWidth());
}

TEST(DrawAreaRecording, ShapesFollowTheOutline) {
    CanvasHolder c;
    c->setSize(100, 100, 0xffffff);
    c->sector(50, 50, 10, 10, 0, 90, 0, 0x00ff00);
    EXPECT_EQ(
        "SetSize(100, 100, 0xffffff)\n"
        "Shape(0x00ff00, false, false, Line, 50, 50, 50, 40, 0x000000, false, "
        "Arc, 50, 50, 10, 10, 50, 40, 60, 50, 0x000000, "
        "Line, 60, 50, 50, 50, 0x000000, false)\n",
        listingOf(c.get()));

    // A full circle is two half arcs meeting on the vertical axis.
    CanvasHolder d;
    d->setSize(100, 100, 0xffffff);
    d->circle(50, 50, 20, 10, 0, 0xff);
    EXPECT_EQ(
        "SetSize(100, 100, 0xffffff)\n"
        "Shape(0x0000ff, false, false, Arc, 50, 50, 20, 10, 50, 40, 50, 60, 0x000000, "
        "Arc, 50, 50, 20, 10, 50, 60, 50, 40, 0x000000)\n",
        listingOf(d.get()));

    // Bad geometry draws nothing.
    CanvasHolder e;
    e->setSize(10, 10, 0);
    e->sector(5, 5, -1, 3, 0, 90, 0, 0xff);
    e->sector(5, 5, 3, 3, 45, 45, 0, 0xff);
    e->circle(kNoValue, 5, 3, 3, 0, 0xff);
    e->arc(5, 5, 3, 3, 0, 90, kTransparent);
    const double x[2] = {1, 2}, y[2] = {1, 2};
    e->polygon(DoubleArray(x, 1), DoubleArray(y, 2), 0, 0xff);
    e->smoothPolygon(DoubleArray(x, 1), DoubleArray(y, 1), 0, 0xff);
    e->drawPath(DoubleArray(x, 2), 0, 0xff, 1);
    EXPECT_EQ("SetSize(10, 10, 0x000000)\n", listingOf(e.get()));
}

TEST(DrawAreaRecording, FrameRectCutsTheInside) {
    CanvasHolder c;
    c->setSize(100, 100, 0xffffff);
    const int radius[4] = {0, 0, 0, 0};
    c->frameRect(0, 0, 9, 9, radius, 2, 0xff);
    std::string listing = listingOf(c.get());
    // Outer and inner outline of four edges each.
    EXPECT_EQ(8, countOf(listing, "Line, "));
    EXPECT_NE(std::string::npos, listing.find("Line, -0.5, -0.5, 9.5, -0.5, "));
    EXPECT_NE(std::string::npos, listing.find("Line, 1.5, 1.5, 7.5, 1.5, "));

    // A border that fills the box leaves only the outer outline.
    CanvasHolder d;
    d->setSize(100, 100, 0xffffff);
    d->frameRect(0, 0, 9, 3, radius, 2, 0xff);
    EXPECT_EQ(4, countOf(listingOf(d.get()), "Line, "));
}

TEST(DrawAreaRecording, MergeCloneAndTile) {
    CanvasHolder c, src;
    c->setSize(100, 50, 0xffffff);
    src->setSize(11, 21, 0xff0000);
    c->merge(src.get(), 50, 60, kTransparent, 255);
    c->merge(nullptr, 0, 0, kTopLeft, 0);
    c->merge(c.get(), 0, 0, kTopLeft, 0);
    EXPECT_EQ("SetSize(100, 50, 0xffffff)\n", listingOf(c.get()));

    c->merge(src.get(), 50, 60, kCenter, 0);
    std::string listing = listingOf(c.get());
    EXPECT_EQ(1, countOf(listing, "EndDefineSymbol("));
    EXPECT_NE(std::string::npos, listing.find(", 45, 50, 11, 21, 0)\n"));

    // clone writes into the destination, sized as asked.
    CanvasHolder dst;
    dst->setSize(40, 40, 0xffffff);
    src->clone(dst.get(), 40, 40, kBottomRight, -1, 0, 2, 1.0);
    EXPECT_NE(std::string::npos, listingOf(dst.get()).find(", 30, 40, 11, 1, 0)\n"));

    // Tiling merges at every multiple of the source's size, rows outside.
    CanvasHolder t, tileSrc;
    t->setSize(25, 15, 0xffffff);
    tileSrc->setSize(10, 10, 0xff);
    t->tile(tileSrc.get(), 0);
    listing = listingOf(t.get());
    EXPECT_EQ(6, countOf(listing, "MergeWithScaling("));
    size_t first = listing.find(", 20, 0, 10, 10, 0)"),
           second = listing.find(", 0, 10, 10, 10, 0)");
    EXPECT_NE(std::string::npos, first);
    EXPECT_LT(first, second);
}

TEST(DrawAreaRecording, TileWithOnePixel) {
    CanvasHolder c, dot;
    c->setSize(20, 10, 0xffffff);
    dot->setSize(1, 1, kTransparent);
    c->tile(dot.get(), 0);
    EXPECT_EQ("SetSize(20, 10, 0xffffff)\n", listingOf(c.get()));
    dot->setSize(1, 1, 0x336699);
    c->tile(dot.get(), 0);
    EXPECT_EQ("SetSize(20, 10, 0xffffff)\nRoundedRect(0, 0, 19, 9, 0, 0x336699, 0x336699)\n",
              listingOf(c.get()));
}

TEST(DrawAreaRecording, RasterReplaysOnlyNewRecords) {
    CountingRaster::created = 0;
    CountingHolder c;
    c->setSize(100, 50, 0xffffff);
    auto *raster = static_cast<CountingRaster *>(c->getRaster());
    ASSERT_NE(nullptr, raster);
    EXPECT_EQ(raster, c->getRaster());
    EXPECT_EQ(1, raster->sizes);
    c->line(1, 1, 20, 20, 0, 1);
    c->getRaster();
    c->getRaster();
    EXPECT_EQ(1, raster->sizes);
    EXPECT_EQ(1, raster->polyLines);
    EXPECT_EQ(1, CountingRaster::created);

    // A new bitmap scale can't continue the raster: it is rebuilt from the start.
    c->setOutputOptions("bmpscale=2");
    auto *rebuilt = static_cast<CountingRaster *>(c->getRaster());
    EXPECT_EQ(2, CountingRaster::created);
    EXPECT_EQ(1, rebuilt->sizes);
    EXPECT_EQ(1, rebuilt->polyLines);
    EXPECT_GT(static_cast<DrawAreaImpl *>(c.get())->getReplayPos(), 0);
}

TEST(DrawAreaRecording, DynamicLayer) {
    CanvasHolder c;
    c->setSize(100, 50, 0xffffff);
    c->line(1, 1, 20, 20, 0, 1);
    std::string base = listingOf(c.get());
    c->removeDynamicLayer();
    EXPECT_EQ(base, listingOf(c.get()));

    c->initDynamicLayer();
    c->rect(1, 1, 5, 5, 0, 0xff, 0);
    c->initDynamicLayer();  // the first layer goes
    c->line(2, 2, 30, 30, 0xff0000, 1);
    std::string layered = listingOf(c.get());
    EXPECT_EQ(1, countOf(layered, "InitDynamicLayer()"));
    EXPECT_EQ(0, countOf(layered, "RoundedRect"));
    EXPECT_EQ(base +
                  "InitDynamicLayer()\nSetClipRect(0, 0, 99, 49)\n"
                  "PolyLine(0xff0000, 1, [2, 2, 30, 30])\n",
              layered);

    c->removeDynamicLayer();
    EXPECT_EQ(base, listingOf(c.get()));
    c->removeDynamicLayer();
    EXPECT_EQ(base, listingOf(c.get()));
}

TEST(DrawAreaRecording, DynamicLayerRewindsTheRaster) {
    CountingHolder c;
    c->setSize(100, 50, 0xffffff);
    c->getRaster();
    c->initDynamicLayer();
    int mark = static_cast<DrawAreaImpl *>(c.get())->getMetaDraw()->getEndPos();
    c->line(2, 2, 30, 30, 0xff0000, 1);
    c->getRaster();
    c->removeDynamicLayer();
    EXPECT_LE(static_cast<DrawAreaImpl *>(c.get())->getReplayPos(), mark);
}

// Translation itself is the colour model's; here, that a sub-canvas shares it.
TEST(DrawAreaRecording, SubCanvasSharesThePalette) {
    CanvasHolder c;
    const int table[3] = {0xffffff, 0, 0x111111};
    c->setColorTable(IntArray(table, 3), 0);

    DrawArea *sub = c->createSubDrawArea(5, 5);
    EXPECT_EQ(0x111111, sub->getARGBColor(kTextColor));
    EXPECT_EQ(5, sub->getWidth());
    // The parent's list keeps the merged sub-canvas; both go with the parent.
    c->setSize(20, 20, 0);
    c->merge(sub, 0, 0, kTopLeft, 0);
    sub->destroy();
    EXPECT_EQ(1, countOf(listingOf(c.get()), "SetSize(5, 5, Chart.Transparent)"));
}
