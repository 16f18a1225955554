#pragma once

// GIF reader: the first image of an "87a" or "89a" file, its transparent index
// and interlace.
class GIFDecoder {
public:
    // Decodes into width by height pixels, the logical screen; what the image
    // doesn't cover is kTransparent.  On failure all pixels are kTransparent
    // and the result is false.
    static bool decode(const char *data, int length, int width, int height, int *pixels);

private:
    GIFDecoder(const unsigned char *data, int length);
    bool run(int width, int height, int *pixels);
    bool ReadOK(unsigned char *buffer, int count);
    int readByte();
    int readWord();
    bool readColorTable(int count, int *table);
    bool skipBlocks();
    bool readExtension();
    bool readImage(int width, int height, int *pixels);
    int GetCode();
    void resetTable();
    int LWZReadByte();

    static const int kMaxCodes = 4096;

    const unsigned char *data;
    int length;
    int position;
    int globalTable[256];
    int globalCount;
    int transparentIndex;
    int disposal;

    // Code reader: the current data sub-block.
    unsigned char block[256];
    int blockSize;
    int blockPosition;
    bool dataEnded;
    unsigned long accumulator;
    int accumulatedBits;

    // LZW state.
    int minCodeSize;
    int codeSize;
    int clearCode;
    int endCode;
    int nextCode;
    int codeLimit;
    int oldCode;
    int firstCode;
    unsigned short prefix[kMaxCodes];
    unsigned char suffix[kMaxCodes];
    unsigned char stack[kMaxCodes + 1];
    int stackSize;
};
