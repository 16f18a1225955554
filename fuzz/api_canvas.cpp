// Bytes read as a run of calls on the flat canvas interface, with whatever
// numbers they hold: nothing may crash, hang or leak, and the outputs must come.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "api/CDrawArea.h"
#include "api/CTTFText.h"
#include "fuzz/ByteReader.h"

namespace {

class Bytes : public ByteReader {
public:
    using ByteReader::ByteReader;
    // Mostly small coordinates, now and then an extreme or a NaN.
    double number() {
        uint8_t kind = byte();
        if (kind == 0xFF) return std::numeric_limits<double>::quiet_NaN();
        if (kind == 0xFE) return std::numeric_limits<double>::infinity();
        if (kind == 0xFD) return -1e300;
        return (int16_t)(byte() << 8 | byte()) / 64.0;
    }
    // Sizes stay small so that a run stays fast.
    int size300() { return (int)(byte() % 160) * 2 - 20; }
    int color() { return byte() & 1 ? word() : (int)(0xFFFF0000u + byte()); }
    std::string text() {
        std::string s;
        for (int n = byte() % 24; n > 0 && more(); --n) s += (char)byte();
        return s;
    }
    std::vector<double> numbers() {
        std::vector<double> v(byte() % 40);
        for (double &x : v) x = number();
        return v;
    }
    std::vector<int> words() {
        std::vector<int> v(byte() % 24);
        for (int &x : v) x = word();
        return v;
    }
};

void step(CDrawArea *d, CDrawArea *other, Bytes &in) {
    switch (in.byte() % 24) {
        case 0:
            CDrawArea_setSize(d, in.size300(), in.size300(), in.color());
            break;
        case 1:
            CDrawArea_line(d, in.number(), in.number(), in.number(), in.number(), in.color(),
                           in.byte() % 40 - 4);
            break;
        case 2:
            CDrawArea_rect(d, in.number(), in.number(), in.number(), in.number(), in.color(),
                           in.color(), in.word());
            break;
        case 3:
            CDrawArea_circle(d, in.number(), in.number(), in.number(), in.number(), in.color(),
                             in.color());
            break;
        case 4: {
            std::vector<double> x = in.numbers(), y = in.numbers();
            CDrawArea_polygon(d, x.data(), (int)x.size(), y.data(), (int)y.size(), in.color(),
                              in.color());
            break;
        }
        case 5:
            CDrawArea_sector(d, in.number(), in.number(), in.number(), in.number(), in.number(),
                             in.number(), in.color(), in.color());
            break;
        case 6:
            CDrawArea_ringSector(d, in.number(), in.number(), in.number(), in.number(), in.number(),
                                 in.number(), in.number(), in.number(), in.color(), in.color());
            break;
        case 7:
            CDrawArea_fill(d, in.size300(), in.size300(), in.color());
            break;
        case 8:
            CDrawArea_setClipRect(d, in.size300(), in.size300(), in.size300(), in.size300());
            break;
        case 9: {
            std::string s = in.text();
            CDrawArea_text3(d, s.c_str(), "arial.ttf", in.byte() % 30, in.size300(), in.size300(),
                            in.color());
            break;
        }
        case 10: {
            std::string s = in.text();
            CTTFText *t = CDrawArea_text2(d, s.c_str(), "arialbd.ttf", 0, in.byte() % 30, 0,
                                          in.number(), in.byte() & 1);
            CTTFText_draw(t, in.size300(), in.size300(), in.color(), in.byte() % 15);
            CTTFText_destroy(t);
            break;
        }
        case 11:
            CDrawArea_dashLineColor(d, in.color(), in.word());
            break;
        case 12:
            CDrawArea_linearGradientColor(d, in.size300(), in.size300(), in.size300(), in.size300(),
                                          in.color(), in.color(), in.byte() & 1);
            break;
        case 13: {
            std::vector<int> colors = in.words();
            CDrawArea_patternColor(d, colors.data(), (int)colors.size(), in.byte() % 8,
                                   in.size300(), in.size300());
            break;
        }
        case 14:
            CDrawArea_merge(d, other, in.size300(), in.size300(), in.byte() % 15, in.byte());
            break;
        case 15:
            CDrawArea_clone(other, d, in.size300(), in.size300(), in.byte() % 15, in.size300(),
                            in.size300(), in.byte() % 4, 1.0);
            break;
        case 16:
            CDrawArea_tile(d, other, in.byte());
            break;
        case 17:
            CDrawArea_initDynamicLayer(d);
            break;
        case 18:
            CDrawArea_removeDynamicLayer(d);
            break;
        case 19:
            CDrawArea_rotate(d, in.number(), in.color(), in.number(), in.number(), in.byte() % 4,
                             1.0);
            break;
        case 20: {
            std::vector<int> colors = in.words();
            int c = CDrawArea_angleGradientColor(d, in.number(), in.number(), in.number(),
                                                 in.number(), in.number(), in.number(),
                                                 colors.data(), (int)colors.size());
            CDrawArea_ring(d, in.number(), in.number(), in.number(), in.number(), in.number(),
                           in.number(), c, c);
            break;
        }
        case 21:
            CDrawArea_pixel(d, in.size300(), in.size300(), in.color());
            break;
        case 22:
            CDrawArea_setBgDropShadow(d, in.color(), in.byte() % 20 - 10, in.byte() % 20 - 10,
                                      in.byte() % 12);
            break;
        default: {
            std::vector<double> xy = in.numbers();
            CDrawArea_polyShape(d, xy.data(), (int)xy.size(), in.color(), in.color());
            break;
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size > 4096) return 0;
    Bytes in(data, size);
    CDrawArea *d = CDrawArea_create(), *other = CDrawArea_create();
    CDrawArea_setSize(d, 64, 48, 0xffffff);
    CDrawArea_setSize(other, 9, 7, 0x336699);
    for (int calls = 0; in.more() && calls < 200; ++calls) step(d, other, in);
    const char *out = nullptr;
    int len = 0;
    CDrawArea_outAGF2(d, &out, &len);
    CDrawArea_outPNG2(d, &out, &len);
    CDrawArea_destroy(other);
    CDrawArea_destroy(d);
    return 0;
}
