#include <gtest/gtest.h>

#include <cmath>

#include "families/pie/shape/PieView.h"
#include "foundation/Constants.h"
#include "tests/families/PieTestSupport.h"
#include "text/box/TextBox.h"

namespace {

const std::vector<double> kW3 = {35, 25, 18, 12, 9, 6, 4, 3};

// The outline of sector i: outer arc from its start, the centre, then the start again.
std::vector<int> outline(OwnedPie &pie, int i) {
    pie->layout();
    return polyOf(pie->sector(i)->getImageCoor(0, 0));
}

// The point of the outline before its closing point: the sector's centre.
std::pair<int, int> centreOf(const std::vector<int> &poly) {
    size_t n = poly.size();
    return {poly[n - 4], poly[n - 3]};
}

}  // namespace

TEST(PieGeometry, SectorsRunFromTheStartAngleInTheirDirection) {
    OwnedPie clockwise(400, 400);
    clockwise.setData(kW3);
    clockwise->setPieSize(250, 200, 100);
    std::vector<int> first = outline(clockwise, 0);
    // From 12 o'clock to 112.5 degrees, then the centre.
    ASSERT_GE(first.size(), 8u);
    EXPECT_EQ(first[0], 250);
    EXPECT_EQ(first[1], 100);
    size_t n = first.size();
    EXPECT_EQ(first[n - 6], 342);
    EXPECT_EQ(first[n - 5], 238);
    EXPECT_EQ(centreOf(first), std::make_pair(250, 200));

    // Anti-clockwise, the first sector ends at the start angle.
    OwnedPie anti(400, 400);
    anti.setData(kW3);
    anti->setPieSize(250, 200, 100);
    anti->setStartAngle(0, false);
    std::vector<int> back = outline(anti, 0);
    EXPECT_EQ(back[0], 158);
    EXPECT_EQ(back[1], 238);
    n = back.size();
    EXPECT_EQ(back[n - 6], 250);
    EXPECT_EQ(back[n - 5], 100);

    // A start angle of 450 is 3 o'clock.
    OwnedPie turned(400, 400);
    turned.setData(kW3);
    turned->setPieSize(250, 200, 100);
    turned->setStartAngle(450, true);
    EXPECT_EQ(outline(turned, 0)[0], 350);
    EXPECT_EQ(outline(turned, 0)[1], 200);
}

TEST(PieGeometry, ExplodedSectorsAndGroupsMoveAlongTheirBisector) {
    OwnedPie pie(400, 400);
    pie.setData(kW3);
    pie->setPieSize(200, 200, 100);
    pie->setExplode(0, 20);
    // The first sector's bisector is at 56.25 degrees.
    EXPECT_EQ(centreOf(outline(pie, 0)), std::make_pair(200 + 17, 200 - 11));
    EXPECT_EQ(centreOf(outline(pie, 1)), std::make_pair(200, 200));

    // A group round the end (H and A) moves as one, along the bisector of both.
    OwnedPie group(400, 400);
    group.setData(kW3);
    group->setPieSize(200, 200, 100);
    group->setExplodeGroup(7, 0, 30);
    std::pair<int, int> a = centreOf(outline(group, 0)), h = centreOf(outline(group, 7));
    EXPECT_EQ(a, h);
    EXPECT_EQ(a, std::make_pair(200 + 23, 200 - 19));
    EXPECT_EQ(centreOf(outline(group, 1)), std::make_pair(200, 200));

    // The whole pie as a group stays; -1 explodes each sector by itself, by a
    // quarter of the radius unless given.
    OwnedPie whole(400, 400);
    whole.setData(kW3);
    whole->setPieSize(200, 200, 100);
    whole->setExplodeGroup(3, 2, 30);
    whole->setExplodeGroup(0, 7, 30);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(centreOf(outline(whole, i)), std::make_pair(200, 200));
    OwnedPie each(400, 400);
    each.setData(kW3);
    each->setPieSize(200, 200, 100);
    each->setExplode(-1, -1);
    EXPECT_EQ(centreOf(outline(each, 0)), std::make_pair(200 + 21, 200 - 14));
    EXPECT_NE(centreOf(outline(each, 4)), centreOf(outline(each, 0)));
}

TEST(PieGeometry, SharesCountSizesAndZerosShareEqually) {
    // A negative value counts by its size; a missing one is left out.
    OwnedPie pie(300, 300);
    pie.setData({-1, 1, kNoValue, 2, NAN});
    pie->setPieSize(150, 150, 80);
    std::string map = pie->getHTMLImageMap("p.html", "{sector}:{percent}", "", 0, 0);
    EXPECT_NE(map.find("href=\"p.html?0:25.00\""), std::string::npos);
    EXPECT_NE(map.find("href=\"p.html?1:25.00\""), std::string::npos);
    EXPECT_NE(map.find("href=\"p.html?3:50.00\""), std::string::npos);
    EXPECT_EQ(map.find("p.html?2:"), std::string::npos);
    EXPECT_EQ(map.find("p.html?4:"), std::string::npos);
    EXPECT_EQ(std::string(pie->sector(2)->getImageCoor(0, 0)), "");

    // All zeros: equal sectors, each a quarter of the circle.
    OwnedPie zeros(300, 300);
    zeros.setData({0, 0, 0, 0});
    zeros->setPieSize(150, 150, 80);
    std::string zmap = zeros->getHTMLImageMap("p.html", "{percent}", "", 0, 0);
    size_t count = 0;
    for (size_t at = zmap.find("p.html?25.00"); at != std::string::npos;
         at = zmap.find("p.html?25.00", at + 1))
        ++count;
    // Each sector and its label.
    EXPECT_EQ(count, 8u);
    std::vector<int> second = outline(zeros, 1);
    EXPECT_EQ(second[0], 230);
    EXPECT_EQ(second[1], 150);

    // No data: nothing drawn, no map.
    OwnedPie empty(100, 100);
    empty->setPieSize(50, 50, 30);
    EXPECT_EQ(listingLines(empty->makeChart()).size(), 1u);
    EXPECT_EQ(std::string(empty->getHTMLImageMap("p.html", "", "", 0, 0)), "");
    EXPECT_EQ(empty->sector(0), nullptr);
}

// A sector held beyond a shorter data set stays a live object, out of the pie,
// and comes back with its index and its settings when the data grows again.
TEST(PieGeometry, SectorsBeyondTheDataWaitForTheirIndex) {
    OwnedPie pie(300, 300);
    pie.setData({1, 2, 3, 4});
    SectorImpl *third = pie.sector(2), *fourth = pie.sector(3);
    third->setColor(0x123456, -1, -1);
    pie.setData({5});
    EXPECT_EQ(nullptr, pie->sector(1));
    fourth->setExplode(4);
    fourth->setLabelStyle("", 9, 0)->setText("kept");
    pie.setData({5, 6, 7});
    EXPECT_EQ(third, pie.sector(2));
    EXPECT_EQ(2, third->getIndex());
    EXPECT_EQ(0x123456, third->getColor());
    EXPECT_EQ(7, third->getValue());
    EXPECT_EQ(nullptr, pie->sector(3));
    pie->setPieSize(150, 150, 80);
    EXPECT_NE(listingLines(pie->makeChart()).size(), 1u);
}

TEST(PieGeometry, TiltAndDepthShapeTheRadii) {
    OwnedPie tilted(400, 400);
    tilted.setData({1, 1});
    tilted->setPieSize(200, 200, 100);
    tilted->set3D(-1, -1, false);
    tilted->layout();
    const SectorGeometry &g = tilted.sector(0)->getGeometry();
    // 45 degrees of tilt; the default depth is a twentieth of the height.
    EXPECT_EQ(g.ry, 70);
    EXPECT_EQ(g.depthX, 0);
    EXPECT_EQ(g.depthY, 20);

    // Round, with the bottom towards the depth angle; sectors of their own
    // depths are lifted so that they share one bottom.
    OwnedPie round(400, 400);
    round.setData({1, 1});
    round->setPieSize(200, 200, 100);
    const double depths[] = {10, 30};
    round->set3D2(DoubleArray(depths, 2), 90, true);
    round->layout();
    const SectorGeometry &a = round.sector(0)->getGeometry(), &b = round.sector(1)->getGeometry();
    EXPECT_EQ(a.ry, 100);
    EXPECT_EQ(a.depthX, 10);
    EXPECT_EQ(b.depthX, 30);
    EXPECT_EQ(a.x + a.depthX, 200);
    EXPECT_EQ(b.x + b.depthX, 200);
}

TEST(PieView, WallsAreOrderedByHowFarTheyFaceFromTheViewer) {
    PieView below(kPi, false);
    EXPECT_EQ(below.zOrder(kPi / 2, 3 * kPi / 2), 0);
    EXPECT_NEAR(below.zOrder(0, kPi / 4), 3 * kPi / 4, 1e-12);
    EXPECT_NEAR(below.zOrder(3 * kPi / 2, 7 * kPi / 4), kPi / 2, 1e-12);
    EXPECT_TRUE(below.isNearHalf(kPi));
    EXPECT_FALSE(below.isNearHalf(0.1));
    // With depths of their own, an arc across the far point is the farthest.
    PieView several(kPi, true);
    EXPECT_EQ(several.zOrder(-0.5, 0.5), kPi);
    EXPECT_NEAR(several.zOrder(0, 0.5), kPi - 0.5, 1e-12);
}
