#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "chart/base/BaseChartImpl.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"

// A chart kind with no content of its own: it records the hooks it is called
// through and paints what the test gives it.
class PlainChart : public BaseChartImpl {
public:
    static PlainChart *create(int width, int height) {
        PlainChart *chart = new PlainChart();
        chart->initChart(width, height, kBackgroundColor, kTransparent, 0);
        return chart;
    }

    std::vector<std::string> calls;
    // Drawn by onPaint: a line in this colour, when set.
    int contentColor = kTransparent;
    int mapOffsetX = 0;
    int mapOffsetY = 0;

    using BaseChartImpl::getFreeArea;

protected:
    void onLayoutLegend() override { calls.push_back("layoutLegend"); }
    void onLayoutChart() override { calls.push_back("layoutChart"); }
    void onPaint() override {
        calls.push_back("paint");
        if (contentColor != kTransparent) getRawDrawArea()->line(1, 3, 9, 3, contentColor, 1);
    }
    const char *onGetHTMLImageMap(const char *, const char *, const char *, int offsetX,
                                  int offsetY) override {
        mapOffsetX = offsetX;
        mapOffsetY = offsetY;
        mapText = "<area x=" + std::to_string(offsetX) + " y=" + std::to_string(offsetY) + ">";
        return mapText.c_str();
    }

private:
    std::string mapText;
};

// Destroys the chart at the end of the test.
template <class Chart>
class Owned {
public:
    explicit Owned(Chart *c) : chart(c) {}
    ~Owned() { chart->destroy(); }
    Owned(const Owned &) = delete;
    Owned &operator=(const Owned &) = delete;
    Chart *operator->() const { return chart; }
    Chart *get() const { return chart; }

private:
    Chart *chart;
};

inline std::vector<std::string> listingLines(DrawArea *d) {
    MemBlock block = d->outAGF2();
    std::vector<std::string> lines;
    std::string text(block.data ? block.data : "", block.len);
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

// The index of the first line that holds the text, -1 if none.
inline int lineWith(const std::vector<std::string> &lines, const std::string &text) {
    for (size_t i = 0; i < lines.size(); ++i)
        if (lines[i].find(text) != std::string::npos) return (int)i;
    return -1;
}

inline int countLinesStarting(const std::vector<std::string> &lines, const std::string &text) {
    int n = 0;
    for (const std::string &l : lines) n += l.rfind(text, 0) == 0;
    return n;
}

inline int countLinesWith(const std::vector<std::string> &lines, const std::string &text) {
    int n = 0;
    for (const std::string &l : lines) n += l.find(text) != std::string::npos;
    return n;
}

struct InkBox {
    bool found = false;
    int left = 1 << 30, top = 1 << 30, right = -1, bottom = -1;
};

// The box of the dark pixels in a region (inclusive), on a light picture.
inline InkBox findInk(DrawArea *d, int x1, int y1, int x2, int y2) {
    InkBox box;
    for (int y = y1; y <= y2; ++y)
        for (int x = x1; x <= x2; ++x) {
            int c = d->getPixel(x, y);
            int r = (c >> 16) & 0xFF, g = (c >> 8) & 0xFF, b = c & 0xFF;
            if (((unsigned)c >> 24) > 0x80 || r + g + b > 3 * 0x90) continue;
            box.found = true;
            box.left = std::min(box.left, x), box.right = std::max(box.right, x);
            box.top = std::min(box.top, y), box.bottom = std::max(box.bottom, y);
        }
    return box;
}
