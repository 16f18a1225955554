#include "foundation/Unicode.h"

#include <cstdlib>
#include <cstring>

namespace qlx {

static int continuationCount(unsigned char lead) {
    if (lead < 0xC0) return 0;
    if (lead < 0xE0) return 1;
    if (lead < 0xF0) return 2;
    if (lead < 0xF8) return 3;
    if (lead < 0xFC) return 4;
    return 5;
}

int UTF8toUTF16(wchar_t *dst, const char *src) {
    const unsigned char *p = (const unsigned char *)src;
    while (*p) {
        unsigned char lead = *p++;
        int extra = continuationCount(lead);
        // A stray continuation byte at a character's start is taken as its value.
        unsigned long code = extra == 0 ? lead : (lead & (0x3F >> extra));
        for (int i = 0; i < extra; ++i) {
            if ((*p & 0xC0) != 0x80) {
                *dst = 0;
                return 0;
            }
            code = (code << 6) | (*p++ & 0x3F);
        }
        if (code <= 0xFFFF) {
            *dst++ = (wchar_t)code;
        } else if (code <= 0x10FFFF) {
            code -= 0x10000;
            *dst++ = (wchar_t)(0xD800 + (code >> 10));
            *dst++ = (wchar_t)(0xDC00 + (code & 0x3FF));
        } else {
            *dst++ = 0xFFFD;
        }
    }
    *dst = 0;
    return 1;
}

void UTF16toUTF8(char *dst, const wchar_t *src) {
    for (; *src; ++src) {
        unsigned unit = (unsigned)*src & 0xFFFF;
        if (unit < 0x80) {
            *dst++ = (char)unit;
        } else if (unit < 0x800) {
            *dst++ = (char)(0xC0 | (unit >> 6));
            *dst++ = (char)(0x80 | (unit & 0x3F));
        } else {
            *dst++ = (char)(0xE0 | (unit >> 12));
            *dst++ = (char)(0x80 | ((unit >> 6) & 0x3F));
            *dst++ = (char)(0x80 | (unit & 0x3F));
        }
    }
    *dst = 0;
}

wchar_t *toWCS(wchar_t *dst, const char *src) {
    if (UTF8toUTF16(dst, src)) return dst;
    size_t length = strlen(src);
    size_t converted = mbstowcs(dst, src, length);
    if (converted == (size_t)-1) {
        for (size_t i = 0; i < length; ++i) dst[i] = (unsigned char)src[i];
        converted = length;
    }
    dst[converted] = 0;
    return dst;
}

FILE *fopenUTF8(const char *path, const char *mode) {
    return fopen(path, mode);
}

}  // namespace qlx
