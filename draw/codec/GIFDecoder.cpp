#include "draw/codec/GIFDecoder.h"

#include <algorithm>
#include <cstring>

#include "draw/pixel/PixelImage.h"

GIFDecoder::GIFDecoder(const unsigned char *d, int n)
    : data(d),
      length(d && n > 0 ? n : 0),
      position(0),
      globalCount(0),
      transparentIndex(-1),
      disposal(0),
      blockSize(0),
      blockPosition(0),
      dataEnded(false),
      accumulator(0),
      accumulatedBits(0),
      minCodeSize(0),
      codeSize(0),
      clearCode(0),
      endCode(0),
      nextCode(0),
      codeLimit(0),
      oldCode(-1),
      firstCode(0),
      stackSize(0) {}

bool GIFDecoder::decode(const char *data, int length, int width, int height, int *pixels) {
    if (!pixels || width <= 0 || height <= 0) return false;
    std::fill(pixels, pixels + (long)width * height, kTransparent);
    GIFDecoder *decoder = new GIFDecoder(reinterpret_cast<const unsigned char *>(data), length);
    bool ok = decoder->run(width, height, pixels);
    delete decoder;
    if (!ok) std::fill(pixels, pixels + (long)width * height, kTransparent);
    return ok;
}

bool GIFDecoder::ReadOK(unsigned char *buffer, int count) {
    if (count > length - position) return false;
    memcpy(buffer, data + position, count);
    position += count;
    return true;
}

int GIFDecoder::readByte() {
    unsigned char b;
    return ReadOK(&b, 1) ? b : -1;
}

int GIFDecoder::readWord() {
    unsigned char b[2];
    return ReadOK(b, 2) ? b[0] | (b[1] << 8) : -1;
}

bool GIFDecoder::readColorTable(int count, int *table) {
    unsigned char rgb[3];
    for (int i = 0; i < count; ++i) {
        if (!ReadOK(rgb, 3)) return false;
        table[i] = (rgb[0] << 16) | (rgb[1] << 8) | rgb[2];
    }
    return true;
}

bool GIFDecoder::run(int width, int height, int *pixels) {
    unsigned char header[6];
    if (!ReadOK(header, 6) || memcmp(header, "GIF", 3) != 0 ||
        (memcmp(header + 3, "87a", 3) != 0 && memcmp(header + 3, "89a", 3) != 0))
        return false;
    int screenWidth = readWord(), screenHeight = readWord();
    int flags = readByte();
    if (readByte() < 0 || readByte() < 0 || flags < 0) return false;
    if (screenWidth != width || screenHeight != height) return false;
    if (flags & 0x80) {
        globalCount = 2 << (flags & 7);
        if (!readColorTable(globalCount, globalTable)) return false;
    }
    for (;;) {
        int kind = readByte();
        if (kind == 33) {
            if (!readExtension()) return false;
        } else if (kind == 44) {
            return readImage(width, height, pixels);
        } else {
            return false;  // 59 with no image, an unknown block or the end of data
        }
    }
}

bool GIFDecoder::skipBlocks() {
    for (;;) {
        int size = readByte();
        if (size < 0) return false;
        if (size == 0) return true;
        if (size > length - position) return false;
        position += size;
    }
}

bool GIFDecoder::readExtension() {
    int label = readByte();
    if (label < 0) return false;
    if (label == 249) {
        int size = readByte();
        unsigned char control[255];
        if (size < 0 || !ReadOK(control, size)) return false;
        if (size >= 4) {
            disposal = (control[0] >> 2) & 7;
            transparentIndex = (control[0] & 1) ? control[3] : -1;
        }
    }
    return skipBlocks();
}

bool GIFDecoder::readImage(int width, int height, int *pixels) {
    int left = readWord(), top = readWord(), w = readWord(), h = readWord();
    int flags = readByte();
    if (left < 0 || top < 0 || w < 0 || h < 0 || flags < 0) return false;
    // Bounds the work to the size of the screen the caller allocated.
    if ((long)w * h > 16L * width * height) return false;
    int localTable[256];
    int *table = globalTable;
    int tableCount = globalCount;
    if (flags & 0x80) {
        tableCount = 2 << (flags & 7);
        if (!readColorTable(tableCount, localTable)) return false;
        table = localTable;
    }
    if (tableCount == 0) return false;
    minCodeSize = readByte();
    if (minCodeSize < 1 || minCodeSize > 11) return false;
    clearCode = 1 << minCodeSize;
    endCode = clearCode + 1;
    resetTable();

    static const int kStart[4] = {0, 4, 2, 1};
    static const int kStep[4] = {8, 8, 4, 2};
    bool interlaced = (flags & 0x40) != 0;
    int pass = 0, y = interlaced ? kStart[0] : 0;
    for (int row = 0; row < h; ++row) {
        if (interlaced) {
            while (y >= h && pass < 3) y = kStart[++pass];
        } else {
            y = row;
        }
        int screenY = top + y;
        int *out = screenY < height ? pixels + (long)screenY * width : nullptr;
        for (int x = 0; x < w; ++x) {
            int v = LWZReadByte();
            if (v < 0) return false;
            int screenX = left + x;
            if (!out || screenX >= width) continue;
            out[screenX] = v == transparentIndex || v >= tableCount ? kTransparent : table[v];
        }
        if (interlaced) y += kStep[pass];
    }
    return true;
}

void GIFDecoder::resetTable() {
    codeSize = minCodeSize + 1;
    nextCode = clearCode + 2;
    codeLimit = 1 << codeSize;
    oldCode = -1;
}

// The next code, least significant bit first across the data sub-blocks; -1 at
// the end of the data.
int GIFDecoder::GetCode() {
    while (accumulatedBits < codeSize) {
        if (blockPosition >= blockSize) {
            if (dataEnded) return -1;
            int size = readByte();
            if (size <= 0 || !ReadOK(block, size)) {
                dataEnded = true;
                return -1;
            }
            blockSize = size;
            blockPosition = 0;
        }
        accumulator |= (unsigned long)block[blockPosition++] << accumulatedBits;
        accumulatedBits += 8;
    }
    int code = (int)(accumulator & ((1ul << codeSize) - 1));
    accumulator >>= codeSize;
    accumulatedBits -= codeSize;
    return code;
}

// The next pixel index, -1 at the end of the data or on a bad code.
int GIFDecoder::LWZReadByte() {
    if (stackSize > 0) return stack[--stackSize];
    for (;;) {
        int code = GetCode();
        if (code < 0 || code == endCode) return -1;
        if (code == clearCode) {
            resetTable();
            continue;
        }
        if (oldCode < 0) {
            if (code >= clearCode) return -1;
            oldCode = firstCode = code;
            return code;
        }
        int incoming = code;
        if (code > nextCode) return -1;
        if (code == nextCode) {
            if (nextCode >= kMaxCodes) return -1;
            stack[stackSize++] = (unsigned char)firstCode;
            code = oldCode;
        }
        while (code >= clearCode) {
            if (stackSize >= kMaxCodes) return -1;
            stack[stackSize++] = suffix[code];
            code = prefix[code];
        }
        firstCode = code;
        stack[stackSize++] = (unsigned char)code;
        if (nextCode < kMaxCodes) {
            prefix[nextCode] = (unsigned short)oldCode;
            suffix[nextCode] = (unsigned char)firstCode;
            ++nextCode;
            if (nextCode >= codeLimit && codeSize < 12) {
                ++codeSize;
                codeLimit <<= 1;
            }
        }
        oldCode = incoming;
        return stack[--stackSize];
    }
}
