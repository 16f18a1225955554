#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/PieChart.h"
#include "families/pie/Sector.h"
#include "families/pie/SectorImpl.h"
#include "tests/chart/ChartTestSupport.h"

// A pie chart destroyed at the end of the test.
class OwnedPie {
public:
    OwnedPie(int width, int height)
        : chart(PieChart::create(width, height, 0xFFFFFF, kTransparent, 0)) {}
    ~OwnedPie() { chart->destroy(); }
    OwnedPie(const OwnedPie &) = delete;
    OwnedPie &operator=(const OwnedPie &) = delete;
    PieChart *operator->() const { return chart; }
    PieChart *get() const { return chart; }

    void setData(const std::vector<double> &values) {
        names.clear();
        for (size_t i = 0; i < values.size(); ++i)
            names.push_back(std::string(1, (char)('A' + i % 26)));
        std::vector<const char *> labels;
        for (const std::string &n : names) labels.push_back(n.c_str());
        chart->setData(DoubleArray(values.data(), (int)values.size()),
                       StringArray(labels.data(), (int)labels.size()));
    }
    SectorImpl *sector(int i) const { return static_cast<SectorImpl *>(chart->sector(i)); }

private:
    PieChart *chart;
    std::vector<std::string> names;
};

struct Rect {
    bool found = false;
    int left = 0, top = 0, right = 0, bottom = 0;
    bool overlaps(const Rect &o) const {
        return left <= o.right && o.left <= right && top <= o.bottom && o.top <= bottom;
    }
};

// The rectangle of an image-map shape "shape=\"rect\" coords=\"l,t,r,b\"".
inline Rect rectOf(const char *coords) {
    Rect r;
    r.found = sscanf(coords, "shape=\"rect\" coords=\"%d,%d,%d,%d\"", &r.left, &r.top, &r.right,
                     &r.bottom) == 4;
    return r;
}

// The points of an image-map shape "shape=\"poly\" coords=\"x,y,...\"".
inline std::vector<int> polyOf(const char *coords) {
    std::vector<int> v;
    const char *p = strstr(coords, "coords=\"");
    if (!p) return v;
    for (p += 8; *p && *p != '"';) {
        char *end;
        v.push_back((int)strtol(p, &end, 10));
        if (end == p) break;
        p = *end == ',' ? end + 1 : end;
    }
    return v;
}
