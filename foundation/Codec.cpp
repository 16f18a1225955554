#include "foundation/Codec.h"

#include <zlib.h>

#include <ctime>

namespace qlx {

int getB64EncodeBufferSize(int n) {
    return (n + 2) / 3 * 4 + 1;
}

char *b64Encode(char *dst, const char *src, int n) {
    static const char kAlphabet[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const unsigned char *in = (const unsigned char *)src;
    char *out = dst;
    int i = 0;
    for (; i + 2 < n; i += 3) {
        unsigned v = (in[i] << 16) | (in[i + 1] << 8) | in[i + 2];
        *out++ = kAlphabet[v >> 18];
        *out++ = kAlphabet[(v >> 12) & 63];
        *out++ = kAlphabet[(v >> 6) & 63];
        *out++ = kAlphabet[v & 63];
    }
    if (i < n) {
        unsigned v = in[i] << 16;
        if (i + 1 < n) v |= in[i + 1] << 8;
        *out++ = kAlphabet[v >> 18];
        *out++ = kAlphabet[(v >> 12) & 63];
        *out++ = i + 1 < n ? kAlphabet[(v >> 6) & 63] : '=';
        *out++ = '=';
    }
    *out = 0;
    return dst;
}

int getZlibBufferSize(int n) {
    return (int)((n * 101.0 + 99.0) / 100.0 + 12.0 + 0.49);
}

int getGzipBufferSize(int n) {
    return (int)((n * 101.0 + 99.0) / 100.0 + 12.0 + 18.0 + 0.49);
}

// One deflate call that must end the stream; returns the bytes written or 0.
static int deflateOnce(char *dst, int dstSize, const char *src, int srcLen, int level,
                       int windowBits) {
    z_stream stream = {};
    if (deflateInit2(&stream, level, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        return 0;
    stream.next_in = (Bytef *)src;
    stream.avail_in = (uInt)(srcLen > 0 ? srcLen : 0);
    stream.next_out = (Bytef *)dst;
    stream.avail_out = (uInt)(dstSize > 0 ? dstSize : 0);
    int status = deflate(&stream, Z_FINISH);
    int written = (int)stream.total_out;
    deflateEnd(&stream);
    return status == Z_STREAM_END ? written : 0;
}

int zlibCompress(char *dst, int dstSize, const char *src, int srcLen, int level) {
    return deflateOnce(dst, dstSize, src, srcLen, level, 15);
}

static void putLittleEndian32(unsigned char *p, unsigned long v) {
    for (int i = 0; i < 4; ++i) p[i] = (unsigned char)(v >> (8 * i));
}

int gzipCompress(char *dst, int dstSize, const char *src, int srcLen, int level) {
    // Room for the header and trailer is kept back, so a short buffer fails
    // instead of being overrun.
    int deflated = deflateOnce(dst + 10, dstSize - 18, src, srcLen, level, -15);
    if (deflated == 0) return 0;
    unsigned char *header = (unsigned char *)dst;
    header[0] = 0x1F;
    header[1] = 0x8B;
    header[2] = 8;
    header[3] = 0;
    putLittleEndian32(header + 4, (unsigned long)time(nullptr));
    header[8] = 2;
    header[9] = 0xFF;
    unsigned char *trailer = header + 10 + deflated;
    unsigned long crc = crc32(0L, (const Bytef *)src, (uInt)(srcLen > 0 ? srcLen : 0));
    putLittleEndian32(trailer, crc);
    putLittleEndian32(trailer + 4, (unsigned long)srcLen);
    return deflated + 18;
}

}  // namespace qlx
