#include "draw/codec/WBMPEncoder.h"

#include <vector>

#include "draw/pixel/Dither.h"
#include "foundation/Stream.h"

bool WBMPEncoder::encode(qlx::ostream &out, const PixelImage &image) {
    if (!image.isValid()) return false;
    int rowBytes = (image.width + 7) / 8;
    std::vector<unsigned char> rows((size_t)rowBytes * image.height);
    Dither::toBits(image, image.ditherMethod, rows.data(), rowBytes);
    out << (char)0 << (char)0;  // type 0, fix header 0
    writeMultiByte(out, (unsigned)image.width);
    writeMultiByte(out, (unsigned)image.height);
    out.write(rows.data(), (int)rows.size());
    return true;
}

// Seven bits a byte, most significant first; all but the last byte have bit 7 set.
void WBMPEncoder::writeMultiByte(qlx::ostream &out, unsigned value) {
    unsigned char bytes[5];
    int n = 0;
    do {
        bytes[n++] = (unsigned char)(value & 0x7f);
        value >>= 7;
    } while (value);
    while (n > 1) out << (char)(bytes[--n] | 0x80);
    out << (char)bytes[0];
}
