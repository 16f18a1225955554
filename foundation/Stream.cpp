#include "foundation/Stream.h"

#include <cstdlib>
#include <cstring>

#include "foundation/Unicode.h"

namespace qlx {

ostream &ostream::operator<<(const char *s) {
    if (s) write(s, (int)strlen(s));
    return *this;
}

ostrstream::~ostrstream() {
    free(buffer);
}

bool ostrstream::ensureSize(int n) {
    if (n <= end - cursor) return true;
    long long capacity = end - buffer;
    long long used = cursor - buffer;
    long long grown = capacity == 0 ? 8000 : capacity * 2;
    if (grown - used < n) grown = capacity + n;
    if (grown > 0x7FFFFFFF) return false;
    char *p = (char *)realloc(buffer, (size_t)grown);
    if (!p) return false;
    buffer = p;
    cursor = p + used;
    end = p + grown;
    return true;
}

void ostrstream::write(const void *buf, int size) {
    if (size <= 0 || !ensureSize(size)) return;
    memcpy(cursor, buf, (size_t)size);
    cursor += size;
}

ostream &ostrstream::operator<<(char c) {
    if (ensureSize(1)) *cursor++ = c;
    return *this;
}

void ostrstream::ensureNullTerminated() {
    if (ensureSize(1)) *cursor = 0;
}

ofstream::ofstream(const char *path, const char *mode)
    : file(path ? fopenUTF8(path, mode) : nullptr) {}

ofstream::~ofstream() {
    if (file) fclose(file);
}

void ofstream::write(const void *buf, int size) {
    if (file && size > 0) fwrite(buf, 1, (size_t)size, file);
}

ostream &ofstream::operator<<(char c) {
    if (file) fputc(c, file);
    return *this;
}

int ofstream::tell() {
    return file ? (int)ftell(file) : 0;
}

void ofstream::flush() {
    if (file) fflush(file);
}

}  // namespace qlx
