#include <gtest/gtest.h>

#include <algorithm>

#include "families/pie/shape/CylinderSectorSurface.h"
#include "families/pie/shape/PieSurfaces.h"
#include "families/pie/shape/SectorPaintStyle.h"
#include "families/pie/shape/SectorShading.h"
#include "foundation/Constants.h"
#include "tests/families/PieTestSupport.h"

namespace {

class Surfaces : public ::testing::Test {
protected:
    void SetUp() override {
        canvas = DrawArea::create();
        canvas->setSize(200, 200, 0xFFFFFF);
        g.x = g.y = 100;
        g.rx = 80, g.ry = 50;
        g.depthY = 12;
        style.color = 0x3366CC;
        style.edgeColor = 0x000000;
    }
    void TearDown() override { canvas->destroy(); }

    DrawArea *canvas;
    SectorGeometry g;
    SectorPaintStyle style;
};

}  // namespace

TEST_F(Surfaces, AWholeDiscShowsOneWallWithoutSeams) {
    PieSurfaces opaque(PieView(kPi, false));
    opaque.addWholeDisc(canvas, g, style);
    opaque.paint(canvas);
    // The top and the front half of the wall, from 3 to 9 o'clock in one piece.
    ASSERT_EQ(opaque.size(), 2);
    auto *wall = dynamic_cast<const CylinderSectorSurface *>(opaque.at(1));
    ASSERT_NE(wall, nullptr);
    EXPECT_NEAR(wall->getStart(), kPi / 2, 1e-12);
    EXPECT_NEAR(wall->getSpan(), kPi, 1e-12);
    EXPECT_EQ(opaque.at(0)->getKind(), SectorSurface::kTop);

    // Through a translucent colour the back half shows too; a donut adds the
    // inner wall's far half.
    style.color = 0x80FF0000;
    PieSurfaces glass(PieView(kPi, false));
    glass.addWholeDisc(canvas, g, style);
    EXPECT_EQ(glass.size(), 3);
    style.color = 0x3366CC;
    g.innerRx = 30, g.innerRy = 18;
    PieSurfaces donut(PieView(kPi, false));
    donut.addWholeDisc(canvas, g, style);
    ASSERT_EQ(donut.size(), 3);
    auto *inner = dynamic_cast<const CylinderSectorSurface *>(donut.at(2));
    ASSERT_NE(inner, nullptr);
    EXPECT_TRUE(inner->isInner());
    EXPECT_NEAR(PieAngle::normalise(inner->getStart()), 3 * kPi / 2, 1e-12);
}

TEST_F(Surfaces, FarWallsPaintFirstAndTopsLast) {
    PieSurfaces surfaces(PieView(kPi, false));
    SectorGeometry right = g, left = g;
    right.start = 0, right.span = kPi;
    left.start = kPi, left.span = kPi;
    surfaces.addSector(canvas, right, style);
    surfaces.addSector(canvas, left, style);
    surfaces.paint(canvas);
    // Each: a top, two flat walls and the curved wall's front half.
    ASSERT_EQ(surfaces.size(), 8);
    EXPECT_EQ(surfaces.at(0)->getKind(), SectorSurface::kTop);
    EXPECT_EQ(surfaces.at(1)->getKind(), SectorSurface::kTop);
    for (int i = 1; i < surfaces.size(); ++i)
        EXPECT_GE(surfaces.at(i)->getZ(), surfaces.at(i - 1)->getZ());
    // The walls along 12 o'clock are the farthest.
    EXPECT_NEAR(surfaces.at(7)->getZ(), kPi, 1e-12);
    // Painted as one piece, so that neighbours share their edges without seams.
    std::vector<std::string> lines = listingLines(canvas);
    auto begin = std::find(lines.begin(), lines.end(), "BeginSuperPixelMode()");
    ASSERT_NE(begin, lines.end());
    EXPECT_EQ(countLinesStarting(std::vector<std::string>(lines.begin(), begin), "Shape("), 0);
    EXPECT_EQ(lines.back(), "CommitSuperPixels()");
}

TEST(PieSurfaceListing, ASingleSectorIsOneDiscAndOneWall) {
    OwnedPie flat(300, 300);
    flat.setData({0, 7, kNoValue});
    flat->setPieSize(150, 150, 80);
    flat->setLabelFormat(" ");
    std::vector<std::string> lines = listingLines(flat->makeChart());
    ASSERT_EQ(countLinesStarting(lines, "Shape("), 1);
    // A closed circle: arcs only, no line to the centre that could show as a seam.
    for (const std::string &l : lines) {
        if (l.rfind("Shape(", 0) == 0) {
            EXPECT_EQ(l.find("Line"), std::string::npos) << l;
        }
    }

    OwnedPie deep(300, 300);
    deep.setData({0, 7, 0});
    deep->setPieSize(150, 150, 80);
    deep->set3D(20, 60, false);
    deep->setLabelFormat(" ");
    lines = listingLines(deep->makeChart());
    EXPECT_EQ(countLinesStarting(lines, "Shape("), 2);
    EXPECT_EQ(countLinesStarting(lines, "Polygon("), 0);
}

TEST(PieShading, TheTableSetsStopsAndTheInnerRatio) {
    EXPECT_EQ(SectorShading(kRingShading).stops(64),
              (std::vector<int>{0, 512, 64, 512, 160, 1280, 256, 512}));
    EXPECT_EQ(SectorShading(kRadialShading).stops(0),
              (std::vector<int>{0, 1536, 0, 1536, 256, 720}));
    EXPECT_EQ(SectorShading(kConcaveShading).getEffect(), SectorShading::kConcave);
    EXPECT_EQ(SectorShading(kGlobalGradientShading).getEffect(), SectorShading::kGlobalGradient);
    EXPECT_EQ(SectorShading(kFlatShading).getEffect(), SectorShading::kPlain);
    EXPECT_EQ(SectorShading(9).getEffect(), SectorShading::kPlain);
    EXPECT_EQ(SectorShading(-3).stops(0).size(), 0u);
}

TEST(PieShading, GradientsLightTheTopAndRadialShadingsTheRim) {
    OwnedPie pie(300, 300);
    pie.setData({1, 1});
    pie->setPieSize(150, 150, 100);
    pie->setLabelFormat(" ");
    pie->setSectorStyle(kLocalGradientShading, -1, -1);
    DrawArea *d = pie->makeChart();
    auto brightness = [d](int x, int y) {
        int c = d->getPixel(x, y);
        return ((c >> 16) & 0xFF) + ((c >> 8) & 0xFF) + (c & 0xFF);
    };
    // Lit from above: near the top of the right half brighter than near its bottom.
    EXPECT_GT(brightness(160, 60), brightness(160, 240) + 100);

    OwnedPie rounded(300, 300);
    rounded.setData({1});
    rounded->setPieSize(150, 150, 100);
    rounded->setLabelFormat(" ");
    rounded->setSectorStyle(kRoundedEdgeNoGlareShading, -1, -1);
    DrawArea *r = rounded->makeChart();
    int centre = r->getPixel(150, 150), plain = r->getARGBColor(kDataColor);
    EXPECT_EQ(centre, plain);
    // The rim's highlight at 236/256 of the radius, darker at the edge.
    int highlight = r->getPixel(150 + 92, 150), rim = r->getPixel(150 + 99, 150);
    EXPECT_GT(highlight & 0xFF, plain & 0xFF);
    EXPECT_LT((rim >> 16) & 0xFF, (plain >> 16) & 0xFF);
}
