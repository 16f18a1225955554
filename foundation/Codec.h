#pragma once

namespace qlx {

int getB64EncodeBufferSize(int n);
char *b64Encode(char *dst, const char *src, int n);

int getZlibBufferSize(int n);
int getGzipBufferSize(int n);
// Both return the number of bytes written, or 0 when the stream did not end.
int zlibCompress(char *dst, int dstSize, const char *src, int srcLen, int level);
int gzipCompress(char *dst, int dstSize, const char *src, int srcLen, int level);

}  // namespace qlx
