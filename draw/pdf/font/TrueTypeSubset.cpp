#include "draw/pdf/font/TrueTypeSubset.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "draw/pdf/font/TrueTypeFile.h"

namespace {

// More cmap segments than this would overflow the table's 16-bit length.
const size_t kMaxSegments = 8000;

// Flags of a component of a composite glyph.
const unsigned kWordArguments = 0x0001;
const unsigned kScale = 0x0008;
const unsigned kMoreComponents = 0x0020;
const unsigned kXYScale = 0x0040;
const unsigned kTwoByTwo = 0x0080;
const unsigned kHasInstructions = 0x0100;

typedef std::vector<unsigned char> Bytes;

void put16(Bytes &b, unsigned v) {
    b.push_back((unsigned char)(v >> 8));
    b.push_back((unsigned char)v);
}

void put32(Bytes &b, uint32_t v) {
    put16(b, v >> 16);
    put16(b, v & 0xFFFF);
}

void set16(Bytes &b, size_t at, unsigned v) {
    b[at] = (unsigned char)(v >> 8), b[at + 1] = (unsigned char)v;
}

void set32(Bytes &b, size_t at, uint32_t v) {
    set16(b, at, v >> 16), set16(b, at + 2, v & 0xFFFF);
}

uint32_t checksum(const Bytes &b, size_t from, size_t length) {
    uint32_t sum = 0;
    for (size_t i = 0; i < length; i += 4) {
        uint32_t word = 0;
        for (size_t k = 0; k < 4; ++k) word = word << 8 | (i + k < length ? b[from + i + k] : 0);
        sum += word;
    }
    return sum;
}

struct OutTable {
    std::string tag;
    Bytes bytes;
};

Bytes copyOf(const TrueTypeFile &font, const char *tag) {
    const TrueTypeFile::Table *t = font.find(tag);
    if (!t) return Bytes();
    return Bytes(font.bytes() + t->offset, font.bytes() + t->offset + t->length);
}

}  // namespace

std::set<int> TrueTypeSubset::closure(const TrueTypeFile &font, const std::set<int> &glyphs) {
    std::set<int> keep;
    std::vector<int> todo(glyphs.begin(), glyphs.end());
    todo.push_back(0);
    while (!todo.empty()) {
        int g = todo.back();
        todo.pop_back();
        if (g < 0 || g >= font.glyphCount() || !keep.insert(g).second) continue;
        for (int part : font.components(g)) todo.push_back(part);
    }
    return keep;
}

std::vector<unsigned char> TrueTypeSubset::cmapOf(const std::map<int, int> &characters) {
    // Runs of characters whose glyphs follow them one to one, then the last segment.
    struct Segment {
        unsigned start, end;
        int delta;
    };
    std::vector<Segment> segments;
    for (const auto &cg : characters) {
        if (cg.first <= 0 || cg.first >= 0xFFFF || cg.second <= 0) continue;
        int delta = cg.second - cg.first;
        if (!segments.empty() && segments.back().end + 1 == (unsigned)cg.first &&
            segments.back().delta == delta)
            segments.back().end = cg.first;
        else if (segments.size() < kMaxSegments)
            segments.push_back(Segment{(unsigned)cg.first, (unsigned)cg.first, delta});
    }
    segments.push_back(Segment{0xFFFF, 0xFFFF, 1});
    unsigned count = (unsigned)segments.size();
    unsigned range = 1, selector = 0;
    while (range * 2 <= count) range *= 2, ++selector;
    Bytes b;
    put16(b, 0), put16(b, 1);                // version, one table
    put16(b, 3), put16(b, 1), put32(b, 12);  // Windows Unicode, at 12
    put16(b, 4), put16(b, 16 + 8 * count), put16(b, 0);
    put16(b, 2 * count), put16(b, 2 * range), put16(b, selector), put16(b, 2 * count - 2 * range);
    for (const Segment &s : segments) put16(b, s.end);
    put16(b, 0);
    for (const Segment &s : segments) put16(b, s.start);
    for (const Segment &s : segments) put16(b, (unsigned)s.delta & 0xFFFF);
    for (unsigned i = 0; i < count; ++i) put16(b, 0);
    return b;
}

// The hints of a glyph go with the font programs they call, which the subset
// leaves out: a simple glyph keeps its contours with no instructions, a
// composite its components without the flag that says instructions follow.
std::vector<unsigned char> TrueTypeSubset::outlineWithoutHints(const unsigned char *g,
                                                               size_t size) {
    Bytes out(g, g + size);
    if (size < 10) return out;
    int contours = (int16_t)(g[0] << 8 | g[1]);
    if (contours >= 0) {
        size_t at = 10 + 2 * (size_t)contours;
        if (at + 2 > size) return out;
        size_t hints = (size_t)(g[at] << 8 | g[at + 1]);
        if (at + 2 + hints > size) return out;
        out.erase(out.begin() + at + 2, out.begin() + at + 2 + hints);
        set16(out, at, 0);
        return out;
    }
    size_t at = 10;
    for (;;) {
        if (at + 4 > size) return out;
        unsigned flags = g[at] << 8 | g[at + 1];
        set16(out, at, flags & ~kHasInstructions);
        at += 4 + (flags & kWordArguments ? 4 : 2) +
              (flags & kTwoByTwo  ? 8
               : flags & kXYScale ? 4
               : flags & kScale   ? 2
                                  : 0);
        if (!(flags & kMoreComponents)) break;
    }
    if (at <= size) out.resize(at);
    return out;
}

// The metrics of the glyphs up to the last one kept: the long metrics the
// font has among them, then the side bearings of the rest.
std::vector<unsigned char> TrueTypeSubset::metricsOf(const TrueTypeFile &font, int glyphCount,
                                                     Bytes &hhea) {
    Bytes hmtx = copyOf(font, "hmtx");
    if (hhea.size() < 36) return hmtx;
    int longMetrics = hhea[34] << 8 | hhea[35];
    int kept = std::min(longMetrics, glyphCount);
    size_t bearingsAt = 4 * (size_t)longMetrics;
    size_t bearings = 2 * (size_t)(glyphCount - kept);
    if (bearingsAt + bearings > hmtx.size()) return hmtx;
    Bytes out(hmtx.begin(), hmtx.begin() + 4 * (size_t)kept);
    out.insert(out.end(), hmtx.begin() + bearingsAt, hmtx.begin() + bearingsAt + bearings);
    set16(hhea, 34, kept);
    return out;
}

std::vector<unsigned char> TrueTypeSubset::build(const TrueTypeFile &font,
                                                 const std::set<int> &glyphs,
                                                 const std::map<int, int> &characters) {
    std::set<int> keep = closure(font, glyphs);
    // Ids beyond the last glyph kept are left out of the file.
    int glyphCount = std::min(*keep.rbegin() + 1, font.glyphCount());
    Bytes glyf, loca;
    for (int g = 0; g < glyphCount; ++g) {
        put32(loca, (uint32_t)glyf.size());
        uint32_t at, size;
        if (!keep.count(g) || !font.glyphLocation(g, &at, &size)) continue;
        Bytes outline = outlineWithoutHints(font.bytes() + at, size);
        glyf.insert(glyf.end(), outline.begin(), outline.end());
        while (glyf.size() % 4) glyf.push_back(0);
    }
    put32(loca, (uint32_t)glyf.size());

    Bytes head = copyOf(font, "head"), maxp = copyOf(font, "maxp"), hhea = copyOf(font, "hhea");
    if (head.size() < 54 || maxp.size() < 6) return Bytes();
    set32(head, 8, 0);   // checkSumAdjustment, set below
    set16(head, 50, 1);  // long locations
    set16(maxp, 4, glyphCount);
    if (maxp.size() >= 28) set16(maxp, 26, 0);  // the largest glyph program
    Bytes hmtx = metricsOf(font, glyphCount, hhea);
    Bytes post = copyOf(font, "post");
    if (post.size() >= 32) {
        post.resize(32);
        set32(post, 0, 0x00030000u);  // no glyph names
    } else {
        post.clear();
    }

    std::vector<OutTable> out;
    if (Bytes os2 = copyOf(font, "OS/2"); !os2.empty()) out.push_back(OutTable{"OS/2", os2});
    out.push_back(OutTable{"cmap", cmapOf(characters)});
    out.push_back(OutTable{"glyf", glyf});
    out.push_back(OutTable{"head", head});
    out.push_back(OutTable{"hhea", hhea});
    out.push_back(OutTable{"hmtx", hmtx});
    out.push_back(OutTable{"loca", loca});
    out.push_back(OutTable{"maxp", maxp});
    if (!post.empty()) out.push_back(OutTable{"post", post});
    std::sort(out.begin(), out.end(),
              [](const OutTable &a, const OutTable &b) { return a.tag < b.tag; });

    unsigned count = (unsigned)out.size();
    unsigned range = 1, selector = 0;
    while (range * 2 <= count) range *= 2, ++selector;
    Bytes file;
    put32(file, 0x00010000u);
    put16(file, count), put16(file, 16 * range), put16(file, selector),
        put16(file, 16 * count - 16 * range);
    size_t offset = 12 + 16 * (size_t)count;
    size_t headAt = 0;
    for (const OutTable &t : out) {
        if (t.tag == "head") headAt = offset;
        for (char c : t.tag) file.push_back((unsigned char)c);
        put32(file, checksum(t.bytes, 0, t.bytes.size()));
        put32(file, (uint32_t)offset);
        put32(file, (uint32_t)t.bytes.size());
        offset += (t.bytes.size() + 3) & ~(size_t)3;
    }
    for (const OutTable &t : out) {
        file.insert(file.end(), t.bytes.begin(), t.bytes.end());
        while (file.size() % 4) file.push_back(0);
    }
    set32(file, headAt + 8, 0xB1B0AFBAu - checksum(file, 0, file.size()));
    return file;
}
