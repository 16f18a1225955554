#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>

#include "layers/line/ColumnReducer.h"
#include "layers/line/LineWalk.h"
#include "tests/layers/LineTestSupport.h"

namespace {

// A random walk: many points per pixel with rises and falls in every column.
std::vector<double> randomWalk(int n, uint32_t seed) {
    std::vector<double> y(n);
    double sum = 0;
    for (int i = 0; i < n; ++i) {
        seed = 1664525u * seed + 1013904223u;
        sum += seed / 4294967296.0 - 0.5;
        y[i] = sum;
    }
    return y;
}

// A chart whose x axis is 600 pixels long.
XYChartImpl *newWideChart() {
    XYChartImpl *chart = newBarChart(700, 300);
    chart->setPlotArea(50, 20, 600, 200, kTransparent, -1, kTransparent, kTransparent,
                       kTransparent);
    return chart;
}

int columnOf(double x) {
    return (int)std::floor(0.5 + x);
}

// For each column of the plot, the first and last row whose pixel is clearly
// inked (each channel at least 96 below white).
std::vector<std::pair<int, int>> inkedRows(DrawArea *d, int left, int right, int top, int bottom) {
    std::vector<std::pair<int, int>> rows;
    for (int x = left; x <= right; ++x) {
        int first = -1, last = -1;
        for (int y = top; y <= bottom; ++y) {
            int p = d->getPixel(x, y);
            bool inked = ((p >> 16) & 255) < 160 || ((p >> 8) & 255) < 160 || (p & 255) < 160;
            if (!inked) continue;
            if (first < 0) first = y;
            last = y;
        }
        rows.push_back({first, last});
    }
    return rows;
}

// The lowest and highest y of the stored points in each column.
std::map<int, std::pair<double, double>> columnRanges(const MultiLine &line) {
    std::map<int, std::pair<double, double>> ranges;
    for (int k = 0; k < line.size(); ++k) {
        double y = line.at(k).y;
        auto it = ranges.find(columnOf(line.at(k).x));
        if (it == ranges.end())
            ranges[columnOf(line.at(k).x)] = {y, y};
        else
            it->second = {std::min(it->second.first, y), std::max(it->second.second, y)};
    }
    return ranges;
}

// A source of pixel points for the walks, as a layer's PointPixels gives them.
struct Points {
    std::vector<double> x, y;
    bool pixel(int i, double *px, double *py) const {
        if (x[i] == kNoValue || y[i] == kNoValue) return false;
        *px = x[i];
        *py = y[i];
        return true;
    }
};

}  // namespace

// The column walk keeps at most four points a column, and the raster of the
// reduced line reaches the highest and lowest point of every column and draws
// nothing beyond what the raster of every point draws.  (Every point's raster
// is up to a few pixels taller: the joins of its many sharp turns stand out
// beyond the data.)  Edges agree within two pixels: an anti-aliased edge
// pixel passes the ink threshold or not by the segments that cross it, and
// the extreme of the column beside may reach into it.
TEST(LineWalk, AMillionPointsKeepFourAColumnAndTheirEnvelope) {
    const int kTolerance = 2;
    const int n = 1000000;
    std::vector<double> y = randomWalk(n, 12345);
    std::vector<std::pair<int, int>> envelope[2];
    std::map<int, std::pair<double, double>> data;
    for (bool fast : {true, false}) {
        Owned<XYChartImpl> chart(newWideChart());
        LineLayer *layer = chart->addLineLayer(values(y), 0x000080, "", 0);
        layer->setXData2(0, n - 1);
        chart->xAxis()->setLinearScale(0, n - 1, 100000, 0);
        layer->setFastLineMode(fast);
        const MultiLine *line = impl(layer)->lineOf(0);
        if (fast) {
            std::map<int, int> perColumn;
            for (int k = 0; k < line->size(); ++k) ++perColumn[columnOf(line->at(k).x)];
            for (const auto &c : perColumn) ASSERT_LE(c.second, 4) << "column " << c.first;
            EXPECT_EQ(perColumn.size(), 601u);
        } else {
            ASSERT_EQ(line->size(), n);
            data = columnRanges(*line);
        }
        envelope[fast] = inkedRows(chart->makeChart(), 51, 649, 21, 219);
    }
    for (int x = 51; x <= 649; ++x) {
        const std::pair<int, int> &reduced = envelope[1][x - 51], &full = envelope[0][x - 51];
        EXPECT_LE(reduced.first, std::ceil(data[x].first) + kTolerance) << "column " << x;
        EXPECT_GE(reduced.second, std::floor(data[x].second) - kTolerance) << "column " << x;
        EXPECT_GE(reduced.first, full.first - kTolerance) << "column " << x;
        EXPECT_LE(reduced.second, full.second + kTolerance) << "column " << x;
    }
}

// Three points a pixel switch the column walk on: a rising line keeps two
// points a column then, all of them below that.
TEST(LineWalk, TheColumnWalkStartsAtThreePointsAPixel) {
    for (int n : {1799, 1800}) {
        for (bool fast : {true, false}) {
            Owned<XYChartImpl> chart(newWideChart());
            std::vector<double> y(n);
            for (int i = 0; i < n; ++i) y[i] = i;
            LineLayer *layer = chart->addLineLayer(values(y), 0x000080, "", 0);
            layer->setFastLineMode(fast);
            int stored = impl(layer)->lineOf(0)->size();
            if (fast && n == 1800)
                EXPECT_LT(stored, 1300) << n;
            else
                EXPECT_EQ(stored, n) << n << " " << fast;
        }
    }
    EXPECT_FALSE(LineWalk::takesColumns(1799, 600));
    EXPECT_TRUE(LineWalk::takesColumns(1800, 600));
    EXPECT_FALSE(LineWalk::takesColumns(5, 0));
}

// A missing first point stores nothing and marks nothing; missing points in a
// row leave one mark on the point before them, in both walks.
TEST(LineWalk, MissingPointsMarkTheStoredPointBeforeThem) {
    Points p;
    p.x = {0, 1, 2, 3, 4, 5};
    p.y = {kNoValue, 10, kNoValue, kNoValue, 12, 13};
    for (bool columns : {false, true}) {
        MultiLine line;
        if (columns)
            LineWalk::columns(p, 0, 6, false, line);
        else
            LineWalk::plain(p, 0, 6, false, line);
        std::vector<std::pair<int, bool>> expected = {{1, true}, {4, false}, {5, false}};
        EXPECT_EQ(storedPoints(&line), expected) << columns;
    }
    MultiLine line;
    line.setData(kNoValue, 1, 0);
    EXPECT_EQ(line.size(), 0);
    line.setData(1, 2, 1);
    line.setData(3, kNoValue, 2);
    line.setData(kNoValue, kNoValue, 3);
    EXPECT_EQ(storedPoints(&line), (std::vector<std::pair<int, bool>>{{1, true}}));
}

// Against every point: the reduced line passes through the highest and lowest
// point of each column, keeps the first and last, and goes in index order; a
// reversed walk goes backwards.
TEST(LineWalk, ColumnsKeepTheirExtremesInOrder) {
    Points p;
    std::vector<double> walk = randomWalk(5000, 7);
    for (int i = 0; i < 5000; ++i) {
        p.x.push_back(i * 0.013);
        p.y.push_back(i % 997 == 500 ? kNoValue : walk[i]);
    }
    for (bool reversed : {false, true}) {
        MultiLine line;
        LineWalk::columns(p, 0, 5000, reversed, line);
        MultiLine all;
        LineWalk::plain(p, 0, 5000, reversed, all);
        EXPECT_EQ(columnRanges(line), columnRanges(all));
        // Four a column between gaps: a gap starts the column anew.
        std::map<std::pair<int, int>, int> perColumn;
        int run = 0;
        for (int k = 0; k < line.size(); ++k) {
            const MultiLine::Point &q = line.at(k);
            EXPECT_EQ(q.y, p.y[q.index]);
            if (k > 0) {
                EXPECT_EQ(q.index > line.at(k - 1).index, !reversed);
            }
            ++perColumn[{run, columnOf(q.x)}];
            run += q.gapAfter;
        }
        for (const auto &c : perColumn) EXPECT_LE(c.second, 4);
        EXPECT_EQ(line.at(0).index, reversed ? 4999 : 0);
        EXPECT_EQ(line.at(line.size() - 1).index, reversed ? 0 : 4999);
        // Four gaps, one mark each.
        int marks = 0;
        for (int k = 0; k < line.size(); ++k) marks += line.at(k).gapAfter;
        EXPECT_EQ(marks, 5);
    }
}

// Points far beyond any canvas make a gap instead of a column.
TEST(LineWalk, UnreachablePixelsBreakTheLine) {
    MultiLine line;
    ColumnReducer reducer(line);
    reducer.add(1, 1, 0);
    reducer.add(1e300, 1, 1);
    reducer.add(std::nan(""), 1, 2);
    reducer.add(2, 2, 3);
    reducer.finish();
    EXPECT_EQ(storedPoints(&line), (std::vector<std::pair<int, bool>>{{0, true}, {3, false}}));
}

// Points at evenly spread x take the walk that reads each column's values by
// their index range: it keeps the very points the column walk keeps, missing
// values, columns of one point and points beyond the data included.
TEST(LineWalk, EvenlySpreadPointsKeepWhatTheColumnWalkKeeps) {
    for (int n : {700, 5000, 200000}) {
        std::vector<double> y = randomWalk(n, n);
        for (int i = n / 3; i < n / 3 + 7; ++i) y[i] = kNoValue;
        y[n / 2] = kNoValue;
        Owned<XYChartImpl> chart(newWideChart());
        LineLayer *layer = chart->addLineLayer(values(y), 0x000080, "", 0);
        layer->setXData2(0, n - 1);
        impl(layer)->lineOf(0);
        PointPixels pixels(*impl(layer), 0);
        ASSERT_TRUE(pixels.isEvenlySpread());
        for (int end : {n, n + 3}) {
            MultiLine general, even;
            LineWalk::columns(pixels, 0, end, false, general);
            LineWalk::evenColumns(pixels, 0, end, even);
            ASSERT_EQ(storedPoints(&even), storedPoints(&general)) << n;
            for (int k = 0; k < even.size(); ++k) {
                EXPECT_EQ(even.at(k).x, general.at(k).x);
                EXPECT_EQ(even.at(k).y, general.at(k).y);
            }
        }
    }
    // A log axis reads every point.
    Owned<XYChartImpl> chart(newWideChart());
    std::vector<double> y(3000, 5.0);
    LineLayer *layer = chart->addLineLayer(values(y), 0x000080, "", 0);
    chart->yAxis()->setLogScale3("");
    impl(layer)->lineOf(0);
    EXPECT_FALSE(PointPixels(*impl(layer), 0).isEvenlySpread());
}
