#pragma once

#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/list/DrawBackEnd.h"
#include "draw/list/MetaDraw.h"
#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaText.h"
#include "foundation/Stream.h"
#include "tests/draw/list/NullBackEnd.h"

namespace metadraw_test {

inline std::string listingOf(MetaDraw *list) {
    qlx::ostrstream out;
    list->writeListing(out);
    out.ensureNullTerminated();
    return out.str() ? std::string(out.str()) : std::string();
}

inline std::string str(int v) {
    return std::to_string(v);
}

class FakeText : public MetaText {
public:
    int refs = 1;
    std::vector<int> colors;  // 0 takes the draw colour
    void retainText() override { ++refs; }
    void releaseText() override { --refs; }
    int getItemCount() const override { return (int)colors.size(); }
    int getItemColor(int i, int defaultColor) const override {
        return colors[i] ? colors[i] : defaultColor;
    }
    // One glyph-less item per colour, so the play of a text shows up.
    void getGlyphRuns(int first, int end, int x, int y, int color, GlyphText &out) const override {
        const double upright[4] = {1, 0, 0, 1};
        out.reset(x, y, upright);
        for (int i = first; i < end && i < getItemCount(); ++i) {
            out.runs.push_back(
                GlyphRun{GlyphFont{}, getItemColor(i, color), false, (int)out.glyphs.size(), 1});
            out.glyphs.push_back(PlacedGlyph{(unsigned)i, 0, 0, 0, 0, 0, GlyphImage{}});
        }
    }
    ~FakeText() override {}
};

// Logs each call as a short line.
class RecordingBackEnd : public NullBackEnd {
public:
    std::vector<std::string> calls;
    bool hasSnapshot = false;
    MetaDraw *reenter = nullptr;
    int reenterResult = -2;

    void log(const std::string &s) { calls.push_back(s); }
    static std::string num(double v) {
        char buf[64];
        snprintf(buf, sizeof buf, "%g", v);
        return buf;
    }

    void beginPlay(double scale) override { log("beginPlay " + num(scale)); }
    void endPlay() override { log("endPlay"); }
    void reportError(const char *message) override { log(std::string("error ") + message); }
    void setSize(int w, int h, int bg) override {
        log("setSize " + str(w) + " " + str(h) + " " + str(bg));
        if (reenter) reenterResult = reenter->play(this, 7);
    }
    void setBgColor(int color) override { log("setBgColor " + str(color)); }
    void line(double x1, double y1, double x2, double y2, int color, int width) override {
        log("line " + num(x1) + " " + num(y1) + " " + num(x2) + " " + num(y2) + " " + str(color) +
            " " + str(width));
    }
    void polyLine(int color, int width, DoubleArray xy) override {
        std::string s = "polyLine " + str(color) + " " + str(width);
        for (int i = 0; i < xy.len; ++i) s += " " + num(xy.data[i]);
        log(s);
    }
    void multiLine(const MetaLineEntry *items, int n) override {
        log("multiLine " + str(n) + (n > 0 && items[0].isStyle ? " style" : ""));
    }
    void polygon(int edge, int fill, DoubleArray x, DoubleArray y) override {
        std::string s = "polygon " + str(edge) + " " + str(fill);
        for (int i = 0; i < x.len && i < y.len; ++i)
            s += " " + num(x.data[i]) + "," + num(y.data[i]);
        log(s);
    }
    void shape(int fill, bool inset, bool keep, const MetaPathItem *items, int n) override {
        std::string s = "shape " + str(fill) + " " + str(inset) + str(keep);
        for (int i = 0; i < n; ++i)
            s += " " + str(items[i].type) + ":" + num(items[i].v[0]) + ":" + str(items[i].color) +
                 ":" + str(items[i].flag);
        log(s);
    }
    // The glyph ids of the fake text are its item indexes.
    void drawText(const GlyphText &text) override {
        int first = (int)text.glyphs.front().glyphId, end = (int)text.glyphs.back().glyphId + 1;
        log("drawText " + str(first) + " " + str(end) + " " + str(text.originX) + " " +
            str(text.originY) + " " + str(text.runs.front().color));
    }
    void beginSymbol(int id) override { log("beginSymbol " + str(id)); }
    void endSymbol(int id) override { log("endSymbol " + str(id)); }
    void mergeWithScaling(int id, int x, int y, int w, int h, int t) override {
        log("mergeWithScaling " + str(id) + " " + str(x) + " " + str(y) + " " + str(w) + " " +
            str(h) + " " + str(t));
    }
    void mergeAtPoints(int id, int w, int h, IntArray points) override {
        std::string s = "mergeAtPoints " + str(id) + " " + str(w) + " " + str(h);
        for (int i = 0; i < points.len; ++i) s += " " + str(points.data[i]);
        log(s);
    }
    void mergeBitMap(int id, IntArray pixels, int width, int x, int y) override {
        log("mergeBitMap " + str(id) + " " + str(pixels.len) + " " + str(width) + " " + str(x) +
            " " + str(y));
    }
    void loadStream(int id, const char *data, int length, int type, int w, int h) override {
        log("loadStream " + str(id) + " " + std::string(data, length) + " " + str(type) + " " +
            str(w) + " " + str(h));
    }
    void initDynamicLayer() override { log("initDynamicLayer"); }
    bool restoreSnapshot() override {
        log("restoreSnapshot");
        return hasSnapshot;
    }
    void removeSymbol(int id) override { log("removeSymbol " + str(id)); }
    void dashLineColor(int handle, int color, int pattern) override {
        log("dashLineColor " + str(handle) + " " + str(color) + " " + str(pattern));
    }
    void linearGradientColor(int handle, double x1, double y1, double x2, double y2, bool,
                             IntArray pairs) override {
        log("linearGradientColor " + str(handle) + " " + num(x1) + " " + num(y1) + " " + num(x2) +
            " " + num(y2) + " " + str(pairs.len));
    }
    void patternColor2(int handle, int sx, int sy, const char *file) override {
        log("patternColor2 " + str(handle) + " " + str(sx) + " " + str(sy) + " " + file);
    }
};

}  // namespace metadraw_test
