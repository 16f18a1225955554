#pragma once

#include <cstdio>
#include <cwchar>

namespace qlx {

// Wide strings hold UTF-16 code units, one per wchar_t.

// Returns 1, or 0 on a malformed continuation byte.  dst needs one unit per input
// byte plus the terminator.
int UTF8toUTF16(wchar_t *dst, const char *src);
// Each unit becomes 1 to 3 bytes; surrogate halves are not joined.  dst needs
// three bytes per unit plus the terminator.
void UTF16toUTF8(char *dst, const wchar_t *src);
// UTF-8, else the C library's multi-byte conversion, else byte by byte.
wchar_t *toWCS(wchar_t *dst, const char *src);

FILE *fopenUTF8(const char *path, const char *mode);

}  // namespace qlx
