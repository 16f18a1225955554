#include "draw/pdf/font/TrueTypeFile.h"

namespace {

const uint32_t kTrueType = 0x00010000u;
const uint32_t kAppleTrueType = 0x74727565u;  // 'true'
const uint32_t kCollection = 0x74746366u;     // 'ttcf'
// More faces or tables than this is no font.
const uint32_t kMaxFaces = 4096;
const uint32_t kMaxTables = 256;
// Composite glyph flags.
const int kArgsAreWords = 0x0001;
const int kHaveScale = 0x0008;
const int kMoreComponents = 0x0020;
const int kHaveXYScale = 0x0040;
const int kHaveTwoByTwo = 0x0080;

}  // namespace

bool TrueTypeFile::parse(const unsigned char *bytes, size_t size, int faceIndex) {
    data = bytes, length = bytes ? size : 0;
    tables.clear();
    if (length < 12 || faceIndex < 0) return false;
    size_t at = 0;
    if (u32(0) == kCollection) {
        uint32_t faces = u32(8);
        if (faces > kMaxFaces || (uint32_t)faceIndex >= faces) return false;
        at = u32(12 + 4 * (size_t)faceIndex);
    } else if (faceIndex != 0) {
        return false;
    }
    return readDirectory(at) && readMetrics();
}

bool TrueTypeFile::readDirectory(size_t at) {
    uint32_t version = u32(at);
    if (version != kTrueType && version != kAppleTrueType) return false;
    uint32_t count = u16(at + 4);
    if (count == 0 || count > kMaxTables || at + 12 + 16 * (size_t)count > length) return false;
    for (uint32_t i = 0; i < count; ++i) {
        size_t entry = at + 12 + 16 * (size_t)i;
        Table t{u32(entry), u32(entry + 8), u32(entry + 12)};
        if (t.offset > length || t.length > length - t.offset) return false;
        tables.push_back(t);
    }
    return true;
}

const TrueTypeFile::Table *TrueTypeFile::find(const char name[5]) const {
    uint32_t tag = tagOf(name);
    for (const Table &t : tables)
        if (t.tag == tag) return &t;
    return nullptr;
}

bool TrueTypeFile::readMetrics() {
    const Table *head = find("head"), *hhea = find("hhea"), *maxp = find("maxp");
    const Table *loca = find("loca"), *glyf = find("glyf"), *hmtx = find("hmtx");
    if (!head || !hhea || !maxp || !loca || !glyf || !hmtx) return false;
    if (head->length < 54 || hhea->length < 36 || maxp->length < 6) return false;
    emUnits = u16(head->offset + 18);
    if (emUnits < 16 || emUnits > 16384) return false;
    for (int i = 0; i < 4; ++i) box[i] = s16(head->offset + 36 + 2 * i);
    longLocations = s16(head->offset + 50) == 1;
    numGlyphs = u16(maxp->offset + 4);
    ascender = s16(hhea->offset + 4);
    descender = s16(hhea->offset + 6);
    numberOfHMetrics = u16(hhea->offset + 34);
    if (numGlyphs == 0 || numberOfHMetrics == 0) return false;
    if ((size_t)numberOfHMetrics * 4 > hmtx->length) return false;
    if ((size_t)(numGlyphs + 1) * (longLocations ? 4 : 2) > loca->length) return false;
    capitalHeight = ascender;
    if (const Table *os2 = find("OS/2")) {
        if (u16(os2->offset) >= 2 && os2->length >= 90) capitalHeight = s16(os2->offset + 88);
    }
    if (const Table *post = find("post")) {
        if (post->length >= 16) {
            slant = (int32_t)u32(post->offset + 4) / 65536.0;
            fixedPitch = u32(post->offset + 12) != 0;
        }
    }
    readName();
    return true;
}

void TrueTypeFile::readName() {
    psName.clear();
    const Table *name = find("name");
    if (!name || name->length < 6) return;
    size_t base = name->offset;
    uint32_t count = u16(base + 2);
    size_t strings = base + u16(base + 4);
    for (uint32_t i = 0;
         i < count && base + 6 + 12 * (size_t)(i + 1) <= name->offset + name->length; ++i) {
        size_t r = base + 6 + 12 * (size_t)i;
        uint16_t platform = u16(r), nameId = u16(r + 6), len = u16(r + 8), off = u16(r + 10);
        if (nameId != 6 || strings + off + len > length) continue;
        std::string s;
        // Windows names are UTF-16; Macintosh ones single bytes.
        bool wide = platform == 3 || platform == 0;
        for (size_t k = 0; k < len; k += wide ? 2 : 1) {
            unsigned c = wide ? u16(strings + off + k) : data[strings + off + k];
            if (c > 32 && c < 127 && c != '[' && c != ']' && c != '(' && c != ')' && c != '{' &&
                c != '}' && c != '<' && c != '>' && c != '/' && c != '%')
                s += (char)c;
        }
        if (!s.empty()) {
            psName = s;
            return;
        }
    }
}

int TrueTypeFile::advanceWidth(int glyph) const {
    const Table *hmtx = find("hmtx");
    if (!hmtx || glyph < 0) return 0;
    int i = glyph < numberOfHMetrics ? glyph : numberOfHMetrics - 1;
    return u16(hmtx->offset + 4 * (size_t)i);
}

bool TrueTypeFile::glyphLocation(int glyph, uint32_t *offset, uint32_t *size) const {
    const Table *loca = find("loca"), *glyf = find("glyf");
    if (!loca || !glyf || glyph < 0 || glyph >= numGlyphs) return false;
    uint32_t a, b;
    if (longLocations) {
        a = u32(loca->offset + 4 * (size_t)glyph), b = u32(loca->offset + 4 * (size_t)glyph + 4);
    } else {
        a = 2u * u16(loca->offset + 2 * (size_t)glyph);
        b = 2u * u16(loca->offset + 2 * (size_t)glyph + 2);
    }
    if (a > b || b > glyf->length) return false;
    *offset = glyf->offset + a, *size = b - a;
    return true;
}

std::vector<int> TrueTypeFile::components(int glyph) const {
    std::vector<int> out;
    uint32_t at, size;
    if (!glyphLocation(glyph, &at, &size) || size < 10 || s16(at) >= 0) return out;
    size_t p = at + 10, end = (size_t)at + size;
    for (int guard = 0; guard < 1024 && p + 4 <= end; ++guard) {
        int flags = u16(p);
        out.push_back(u16(p + 2));
        p += 4 + ((flags & kArgsAreWords) ? 4 : 2);
        if (flags & kHaveScale)
            p += 2;
        else if (flags & kHaveXYScale)
            p += 4;
        else if (flags & kHaveTwoByTwo)
            p += 8;
        if (!(flags & kMoreComponents)) break;
    }
    return out;
}
