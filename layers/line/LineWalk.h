#pragma once

#include <algorithm>

#include "chart/layer/PointPixels.h"
#include "layers/line/ColumnReducer.h"
#include "layers/line/MultiLine.h"

// Fills a data set's line from its points, from first to end - 1 or, on a
// reversed axis, backwards.  A Source tells for point i whether it has both
// values, and its pixel x and y:
//     bool pixel(int i, double *x, double *y) const;
// The walks are templates so that the source's reading inlines into them.
class LineWalk {
public:
    // Whether so many points over an axis of so many pixels take the column
    // walk: three points a pixel or more.
    static bool takesColumns(long long pointCount, int axisPixels) {
        return axisPixels > 0 && pointCount >= 3LL * axisPixels;
    }

    // Every point as it stands; a missing one leaves a gap.
    template <class Source>
    static void plain(const Source &source, int first, int end, bool reversed, MultiLine &line) {
        double x, y;
        forEach(first, end, reversed, [&](int i) {
            if (source.pixel(i, &x, &y))
                line.setData(x, y, i);
            else
                line.setData(kNoValue, kNoValue, i);
        });
    }

    // At most four points in each pixel column (ColumnReducer).
    template <class Source>
    static void columns(const Source &source, int first, int end, bool reversed, MultiLine &line) {
        ColumnReducer reducer(line);
        double x, y;
        forEach(first, end, reversed, [&](int i) {
            if (source.pixel(i, &x, &y))
                reducer.add(x, y, i);
            else
                reducer.gap();
        });
        reducer.finish();
    }

    // The column walk of a data set's points: by index ranges where they are
    // evenly spread and go forward, else point by point.
    static void columnsOf(const PointPixels &source, int first, int end, bool reversed,
                          MultiLine &line) {
        if (!reversed && source.isEvenlySpread())
            evenColumns(source, first, end, line);
        else
            columns(source, first, end, reversed, line);
    }

    // The column walk of points at evenly spread x pixels (PointPixels::
    // isEvenlySpread), first to end - 1: each column's points are found by
    // their index range, and only its first, lowest, highest and last values
    // go to the reducer, which then keeps what it would keep of them all.  A
    // column with a missing value gives every point to the reducer.
    static void evenColumns(const PointPixels &source, int first, int end, MultiLine &line) {
        ColumnReducer reducer(line);
        const double *v = source.values();
        int count = std::min(end, source.valueCount());
        for (int i = std::max(first, 0); i < count;) {
            int next = columnEnd(source, i, count);
            int low = i, high = i;
            double lowest = v[i], highest = v[i];
            bool missing = false;
            for (int k = i + 1; k < next; ++k) {
                double y = v[k];
                missing |= y == kNoValue;
                if (y < lowest) lowest = y, low = k;
                if (y > highest) highest = y, high = k;
            }
            missing |= v[i] == kNoValue;
            if (missing) {
                for (int k = i; k < next; ++k) add(source, k, reducer);
            } else {
                int keep[4] = {i, std::min(low, high), std::max(low, high), next - 1};
                for (int k = 0; k < 4; ++k)
                    if (k == 0 || keep[k] != keep[k - 1]) add(source, keep[k], reducer);
            }
            i = next;
        }
        // Points beyond the values have none.
        if (end > std::max(count, first)) reducer.gap();
        reducer.finish();
    }

private:
    static void add(const PointPixels &source, int i, ColumnReducer &reducer) {
        double y = source.values()[i];
        if (y == kNoValue)
            reducer.gap();
        else
            reducer.add(source.xPixelOf(i), source.yPixelOf(y), i);
    }

    // The end of the run of points from i on that share i's column: guessed
    // from the step, then moved to the exact place (columns follow the index
    // one way).
    static int columnEnd(const PointPixels &source, int i, int count) {
        double x = source.xPixelOf(i), step = source.xPixelOf(i + 1) - x;
        long long c = ColumnReducer::columnOf(x);
        auto inColumn = [&](int k) { return ColumnReducer::columnOf(source.xPixelOf(k)) == c; };
        double edge = step > 0 ? c + 0.5 : c - 0.5;
        double guess = step != 0 ? (edge - x) / step : 1;
        int next = guess > 0 && guess < count - i ? i + std::max((int)guess, 1) : count;
        while (next < count && inColumn(next)) ++next;
        while (next > i + 1 && !inColumn(next - 1)) --next;
        return next;
    }

    template <class Visit>
    static void forEach(int first, int end, bool reversed, Visit visit) {
        if (reversed) {
            for (int i = end - 1; i >= first; --i) visit(i);
        } else {
            for (int i = first; i < end; ++i) visit(i);
        }
    }
};
