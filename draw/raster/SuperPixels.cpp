#include "draw/raster/SuperPixels.h"

#include "draw/pixel/ColorWords.h"
#include "draw/pixel/PixelBlend.h"

SuperPixels::SuperPixels() : active(false) {}

void SuperPixels::clear() {
    active = false;
    smalls.clear(), fulls.clear(), freeSmall.clear(), freeFull.clear();
}

int SuperPixels::sampleCount() const {
    return (int)(smalls.size() - freeSmall.size() + fulls.size() - freeFull.size());
}

unsigned SuperPixels::newSmall(unsigned base, unsigned color, int count) {
    unsigned index;
    if (!freeSmall.empty()) {
        index = freeSmall.back();
        freeSmall.pop_back();
        smalls[index] = {base, color, count};
    } else {
        if ((int)smalls.size() >= kMaxSamples) return PixelBlend::blend(base, color);
        index = (unsigned)smalls.size();
        smalls.push_back({base, color, count});
    }
    return kBase | index;
}

void SuperPixels::release(unsigned word) {
    unsigned index = word & (kFullBit - 1);
    if (word & kFullBit)
        freeFull.push_back(index);
    else
        freeSmall.push_back(index);
}

unsigned SuperPixels::toFull(unsigned word) {
    Small s = smalls[word & (kFullBit - 1)];
    if (fulls.size() >= (size_t)kMaxSamples && freeFull.empty()) return word;
    Full f;
    for (int i = 0; i < 16; ++i) f.c[i] = i < s.count ? s.color : s.base;
    f.filled = s.count;
    f.cursor = 0;
    release(word);
    unsigned index;
    if (!freeFull.empty()) {
        index = freeFull.back();
        freeFull.pop_back();
        fulls[index] = f;
    } else {
        index = (unsigned)fulls.size();
        fulls.push_back(f);
    }
    return kBase | kFullBit | index;
}

void SuperPixels::paintFull(Full &f, unsigned c, int level) {
    for (int k = 0; k < level; ++k) {
        int slot;
        if (f.filled < 16) {
            slot = f.filled++;
        } else {
            slot = f.cursor;
            f.cursor = (f.cursor + 1) & 15;
        }
        f.c[slot] = PixelBlend::blend(f.c[slot], c);
    }
}

unsigned SuperPixels::write(unsigned word, unsigned c, int level) {
    if (level >= 16) return writeFull(word, c);
    if (level <= 0 || PixelBlend::isInvisible(c)) return word;
    if (!isSuper(word)) return newSmall(word, PixelBlend::blend(word, c), level);
    if (!(word & kFullBit)) {
        Small &s = smalls[word & (kFullBit - 1)];
        if (s.color == PixelBlend::blend(s.base, c) && s.count + level <= 16) {
            s.count += level;
            return word;
        }
        word = toFull(word);
        if (!(word & kFullBit)) return word;
    }
    paintFull(fulls[word & (kFullBit - 1)], c, level);
    return word;
}

unsigned SuperPixels::writeFull(unsigned word, unsigned c) {
    if (PixelBlend::isInvisible(c)) return word;
    if (!isSuper(word)) return PixelBlend::blend(word, c);
    if ((c >> 24) == 0) {
        release(word);
        return c;
    }
    if (word & kFullBit) {
        Full &f = fulls[word & (kFullBit - 1)];
        for (int i = 0; i < 16; ++i) f.c[i] = PixelBlend::blend(f.c[i], c);
    } else {
        Small &s = smalls[word & (kFullBit - 1)];
        s.base = PixelBlend::blend(s.base, c), s.color = PixelBlend::blend(s.color, c);
    }
    return word;
}

unsigned SuperPixels::average(unsigned word) const {
    if (!isSuper(word)) return word;
    unsigned c[16];
    if (word & kFullBit) {
        const Full &f = fulls[word & (kFullBit - 1)];
        for (int i = 0; i < 16; ++i) c[i] = f.c[i];
    } else {
        const Small &s = smalls[word & (kFullBit - 1)];
        for (int i = 0; i < 16; ++i) c[i] = i < s.count ? s.color : s.base;
    }
    // Weighted by opacity, so transparent sub-samples add no colour.
    unsigned r = 0, g = 0, b = 0, w = 0;
    for (int i = 0; i < 16; ++i) {
        unsigned o = 255 - (c[i] >> 24);
        r += o * ((c[i] >> 16) & 255), g += o * ((c[i] >> 8) & 255), b += o * (c[i] & 255);
        w += o;
    }
    if (w == 0) return (unsigned)kTransparent;
    unsigned a = 255 - (w + 8) / 16;
    return (a << 24) | ((r + w / 2) / w << 16) | ((g + w / 2) / w << 8) | ((b + w / 2) / w);
}
