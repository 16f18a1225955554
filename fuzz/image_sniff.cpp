// Image bytes from untrusted sources through the canvas: the sniffers must
// neither read past the block nor accept a size that load can't take, and the
// decoders behind the raster must survive whatever load accepted.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "draw/canvas/DrawArea.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size > (1 << 20)) return 0;
    // A copy of exactly the input's size, so that any over-read is caught.
    char *bytes = (char *)malloc(size ? size : 1);
    for (size_t i = 0; i < size; ++i) bytes[i] = (char)data[i];
    int length = (int)size;

    int type = DrawArea::getImageType(length, bytes);
    int width = -1, height = -1;
    DrawArea::getImageSize(length, bytes, &width, &height);
    if (type < 0 && (width != 0 || height != 0)) abort();

    DrawArea *canvas = DrawArea::create();
    bool loaded = canvas->load2(length, bytes, -1);
    if (loaded && (canvas->getWidth() != width || canvas->getHeight() != height)) abort();
    if (!loaded && (canvas->getWidth() != 1 || canvas->getHeight() != 1)) abort();
    if (type >= 0 && canvas->load2(length, bytes, (type + 1) % 5)) abort();
    // Decoding happens when the raster plays the loaded block; keep the pictures small.
    if (loaded && (long long)width * height <= (1 << 20)) canvas->getPixel(width / 2, height / 2);
    canvas->destroy();
    free(bytes);
    return 0;
}
