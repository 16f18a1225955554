#include "draw/codec/GIFEncoder.h"

#include <cstring>

#include "foundation/Stream.h"

namespace {

void putWord(qlx::ostream &out, int v) {
    out << (char)(v & 0xff);
    out << (char)((v >> 8) & 0xff);
}

int bitsFor(int colorCount) {
    int bits = 1;
    while ((1 << bits) < colorCount) ++bits;
    return bits;
}

// Multiplicative probe start: a colour index shifted above the 12 code bits.
const int kHashShift = 4;

}  // namespace

GIFEncoder::GIFEncoder(qlx::ostream &o) : out(o) {}

bool GIFEncoder::encode(qlx::ostream &out, const unsigned char *indexes, int width, int height,
                        const int *palette, int colorCount, int transparentIndex, bool interlace) {
    if (!indexes || !palette || width <= 0 || height <= 0 || width > 65535 || height > 65535 ||
        colorCount < 1 || colorCount > 256)
        return false;
    int bits = bitsFor(colorCount);
    bool transparent = transparentIndex >= 0 && transparentIndex < colorCount;

    out.write(transparent ? "GIF89a" : "GIF87a", 6);
    putWord(out, width);
    putWord(out, height);
    out << (char)(0x80 | ((bits - 1) << 4) | (bits - 1));
    out << (char)0 << (char)0;
    for (int i = 0; i < (1 << bits); ++i) {
        int c = i < colorCount ? palette[i] : 0;
        out << (char)((c >> 16) & 0xff) << (char)((c >> 8) & 0xff) << (char)(c & 0xff);
    }
    if (transparent) {
        static const char kControl[] = {0x21, (char)0xf9, 4, 1, 0, 0};
        out.write(kControl, 6);
        out << (char)transparentIndex << (char)0;
    }
    out << (char)0x2c;
    putWord(out, 0);
    putWord(out, 0);
    putWord(out, width);
    putWord(out, height);
    out << (char)(interlace ? 0x40 : 0);

    int minCodeSize = bits < 2 ? 2 : bits;
    out << (char)minCodeSize;
    GIFEncoder *encoder = new GIFEncoder(out);
    encoder->compress(indexes, width, height, minCodeSize, interlace);
    delete encoder;
    out << (char)0 << ';';
    return true;
}

// Rows in the order of the four passes: every 8th from 0, every 8th from 4,
// every 4th from 2, every 2nd from 1.
int GIFEncoder::interlacedRow(int i, int height) {
    static const int kStart[4] = {0, 4, 2, 1};
    static const int kStep[4] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass) {
        int rows = (height - kStart[pass] + kStep[pass] - 1) / kStep[pass];
        if (rows < 0) rows = 0;
        if (i < rows) return kStart[pass] + i * kStep[pass];
        i -= rows;
    }
    return 0;
}

void GIFEncoder::clearTable() {
    memset(hashTable, 0xff, sizeof(hashTable));
    nextCode = clearCode + 2;
}

void GIFEncoder::compress(const unsigned char *indexes, int width, int height, int minCodeSize,
                          bool interlace) {
    initBits = minCodeSize + 1;
    bits = initBits;
    maxCode = (1 << bits) - 1;
    clearCode = 1 << minCodeSize;
    endCode = clearCode + 1;
    int mask = clearCode - 1;
    clearTable();
    output(clearCode);

    int prefix = -1;
    for (int i = 0; i < height; ++i) {
        const unsigned char *row =
            indexes + (long)(interlace ? interlacedRow(i, height) : i) * width;
        for (int x = 0; x < width; ++x) {
            int c = row[x] & mask;
            if (prefix < 0) {
                prefix = c;
                continue;
            }
            int key = (c << kMaxBits) + prefix;
            int slot = (c << kHashShift) ^ prefix;
            if (hashTable[slot] == key) {
                prefix = codeTable[slot];
                continue;
            }
            if (hashTable[slot] >= 0) {
                int step = slot == 0 ? 1 : kTableSize - slot;
                bool found = false;
                do {
                    slot -= step;
                    if (slot < 0) slot += kTableSize;
                    if (hashTable[slot] == key) {
                        found = true;
                        break;
                    }
                } while (hashTable[slot] >= 0);
                if (found) {
                    prefix = codeTable[slot];
                    continue;
                }
            }
            output(prefix);
            prefix = c;
            if (nextCode < kMaxCodes) {
                codeTable[slot] = (unsigned short)nextCode++;
                hashTable[slot] = key;
            } else {
                clearTable();
                clearPending = true;
                output(clearCode);
            }
        }
    }
    output(prefix);
    output(endCode);
}

void GIFEncoder::output(int code) {
    accumulator |= (unsigned long)code << accumulatedBits;
    accumulatedBits += bits;
    while (accumulatedBits >= 8) {
        addByte((int)(accumulator & 0xff));
        accumulator >>= 8;
        accumulatedBits -= 8;
    }
    // Widen once the decoder's next entry no longer fits, or start over after a clear.
    if (clearPending) {
        bits = initBits;
        maxCode = (1 << bits) - 1;
        clearPending = false;
    } else if (nextCode > maxCode && bits < kMaxBits) {
        ++bits;
        maxCode = bits == kMaxBits ? kMaxCodes : (1 << bits) - 1;
    }
    if (code == endCode) {
        while (accumulatedBits > 0) {
            addByte((int)(accumulator & 0xff));
            accumulator >>= 8;
            accumulatedBits -= 8;
        }
        accumulatedBits = 0;
        flushBlock();
    }
}

void GIFEncoder::addByte(int byte) {
    block[blockLength++] = (unsigned char)byte;
    if (blockLength == 255) flushBlock();
}

void GIFEncoder::flushBlock() {
    if (blockLength == 0) return;
    out << (char)blockLength;
    out.write(block, blockLength);
    blockLength = 0;
}
