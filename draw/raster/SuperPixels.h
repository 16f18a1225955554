#pragma once

#include <cstddef>
#include <vector>

// Samples of pixels that several shapes share an edge on, so that neighbours
// don't leave a seam.  A pixel word 0xFF800000 | index refers to a small sample
// (a base colour, a colour and how many of 16 sub-samples it covers); with bit 22
// set it refers to a full sample of 16 colours.
class SuperPixels {
public:
    static bool isSuper(unsigned word) { return (word & 0xFF800000u) == 0xFF800000u; }

    SuperPixels();
    bool isActive() const { return active; }
    void begin() { active = true; }
    // Colour c covering level / 16 of the pixel whose word is `word`; returns the
    // new word.  c is blended into the sub-samples it covers.
    unsigned write(unsigned word, unsigned c, int level);
    // Colour c over the whole pixel: an opaque colour frees the sample.
    unsigned writeFull(unsigned word, unsigned c);
    // The average colour of a pixel word; plain words stay.
    unsigned average(unsigned word) const;
    // Frees all samples and leaves super-pixel mode.
    void clear();
    int sampleCount() const;

    static const unsigned kBase = 0xFF800000u;
    static const unsigned kFullBit = 0x400000u;
    static const int kMaxSamples = 0x400000;

private:
    struct Small {
        unsigned base, color;
        int count;
    };
    struct Full {
        unsigned c[16];
        int filled;  // sub-samples 0..filled-1 were painted, the rest hold the base
        int cursor;  // next painted sub-sample to overwrite when all are painted
    };
    unsigned newSmall(unsigned base, unsigned color, int count);
    unsigned toFull(unsigned word);
    void release(unsigned word);
    void paintFull(Full &f, unsigned c, int level);

    bool active;
    std::vector<Small> smalls;
    std::vector<Full> fulls;
    std::vector<unsigned> freeSmall, freeFull;
};
