#pragma once

namespace qlx {
class ostream;
}

// GIF writer with its own LZW compressor: an open-addressed table of 5003
// entries, codes up to 12 bits, and a clear code when the table is full.
class GIFEncoder {
public:
    // indexes: one palette index per pixel, each below colorCount (2 to 256).
    // transparentIndex below 0 means none, and the file is then "GIF87a".
    static bool encode(qlx::ostream &out, const unsigned char *indexes, int width, int height,
                       const int *palette, int colorCount, int transparentIndex, bool interlace);

private:
    explicit GIFEncoder(qlx::ostream &out);
    void compress(const unsigned char *indexes, int width, int height, int minCodeSize,
                  bool interlace);
    void clearTable();
    void output(int code);
    void addByte(int byte);
    void flushBlock();
    static int interlacedRow(int i, int height);

    static const int kTableSize = 5003;
    static const int kMaxBits = 12;
    static const int kMaxCodes = 1 << kMaxBits;

    qlx::ostream &out;
    int hashTable[kTableSize];
    unsigned short codeTable[kTableSize];
    int initBits = 0;
    int bits = 0;
    int maxCode = 0;
    int clearCode = 0;
    int endCode = 0;
    int nextCode = 0;
    bool clearPending = false;
    unsigned long accumulator = 0;
    int accumulatedBits = 0;
    unsigned char block[256];
    int blockLength = 0;
};
