#pragma once

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

private:
    template <class Visit>
    static void forEach(int first, int end, bool reversed, Visit visit) {
        if (reversed) {
            for (int i = end - 1; i >= first; --i) visit(i);
        } else {
            for (int i = first; i < end; ++i) visit(i);
        }
    }
};
