#include "draw/codec/PNGCodec.h"

#include <png.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "draw/pixel/ImagePalette.h"
#include "foundation/Stream.h"

namespace {

struct ErrorSink {
    std::string message;
};

void onError(png_structp png, png_const_charp message) {
    ErrorSink *sink = static_cast<ErrorSink *>(png_get_error_ptr(png));
    if (sink) sink->message = message ? message : "";
    png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) {}

void writeToStream(png_structp png, png_bytep data, png_size_t length) {
    static_cast<qlx::ostream *>(png_get_io_ptr(png))->write(data, (int)length);
}

void flushNothing(png_structp) {}

struct MemoryReader {
    const unsigned char *data;
    size_t length;
    size_t position;
};

void readFromMemory(png_structp png, png_bytep out, png_size_t length) {
    MemoryReader *reader = static_cast<MemoryReader *>(png_get_io_ptr(png));
    if (length > reader->length - reader->position) png_error(png, "Unexpected EOF");
    memcpy(out, reader->data + reader->position, length);
    reader->position += length;
}

int bitDepthFor(int colorCount) {
    return colorCount <= 2 ? 1 : colorCount <= 4 ? 2 : colorCount <= 16 ? 4 : 8;
}

}  // namespace

// Everything that must outlive a longjmp lives here, outside the function that
// calls setjmp.
struct PNGCodec::WriteJob {
    qlx::ostream *out;
    const PixelImage *image;
    int compression = -1;
    int paletteCount = 0;
    int palette[256];
    unsigned char alphaTable[256];
    std::vector<unsigned char> indexes;
    std::vector<png_bytep> rows;
    ErrorSink errors;
    png_structp png = nullptr;
    png_infop info = nullptr;
};

struct PNGCodec::ReadJob {
    MemoryReader reader;
    int width, height;
    int *pixels;
    std::vector<png_bytep> rows;
    ErrorSink errors;
    png_structp png = nullptr;
    png_infop info = nullptr;
};

bool PNGCodec::encode(qlx::ostream &out, const PixelImage &image) {
    if (!image.isValid()) return false;
    WriteJob job;
    job.out = &out;
    job.image = &image;
    int mode = image.paletteMode;
    bool usePalette;
    if (mode >= 128 && mode <= 137) {
        job.compression = mode - 128;
        usePalette = false;
        if (mode == 128) out.ensureSize(image.width * image.height * 4 + 50000);
    } else if (mode == kNoPalette) {
        usePalette = false;
    } else if (mode == kForcePalette) {
        usePalette = true;
    } else {
        usePalette = !image.hasTransparentColor() && !image.bgTransparent;
    }
    if (usePalette) {
        job.indexes.resize((size_t)image.pixelCount());
        job.paletteCount = ImagePalette::toPalette(image, job.palette, job.indexes.data(),
                                                   job.alphaTable, mode == kForcePalette);
    }
    job.rows.resize(image.height);
    for (int y = 0; y < image.height; ++y)
        job.rows[y] = job.paletteCount > 0 ? job.indexes.data() + (size_t)y * image.width
                                           : (png_bytep) const_cast<int *>(image.row(y));

    job.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &job.errors, onError, onWarning);
    if (!job.png) return false;
    job.info = png_create_info_struct(job.png);
    bool ok = job.info && runWrite(job);
    png_destroy_write_struct(&job.png, &job.info);
    return ok;
}

bool PNGCodec::runWrite(WriteJob &job) {
    if (setjmp(png_jmpbuf(job.png))) return false;
    png_structp png = job.png;
    png_infop info = job.info;
    const PixelImage &image = *job.image;
    int interlace = image.interlace ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE;

    png_set_write_fn(png, job.out, writeToStream, flushNothing);
    png_set_filter(png, 0, PNG_FILTER_NONE);
    if (job.compression >= 0) png_set_compression_level(png, job.compression);

    if (job.paletteCount > 0) {
        png_set_IHDR(png, info, image.width, image.height, bitDepthFor(job.paletteCount),
                     PNG_COLOR_TYPE_PALETTE, interlace, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        png_color colors[256];
        int lastAlpha = -1;
        for (int i = 0; i < job.paletteCount; ++i) {
            colors[i].red = (png_byte)PixelImage::redOf(job.palette[i]);
            colors[i].green = (png_byte)PixelImage::greenOf(job.palette[i]);
            colors[i].blue = (png_byte)PixelImage::blueOf(job.palette[i]);
            if (job.alphaTable[i] != 255) lastAlpha = i;
        }
        png_set_PLTE(png, info, colors, job.paletteCount);
        if (lastAlpha >= 0) png_set_tRNS(png, info, job.alphaTable, lastAlpha + 1, nullptr);
        png_write_info(png, info);
        png_set_packing(png);
    } else {
        bool alpha = image.bgTransparent;
        png_set_IHDR(png, info, image.width, image.height, 8,
                     alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, interlace,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        if (image.hasTransparentColor()) {
            png_color_16 key = {};
            key.red = (png_uint_16)PixelImage::redOf(image.transparentColor);
            key.green = (png_uint_16)PixelImage::greenOf(image.transparentColor);
            key.blue = (png_uint_16)PixelImage::blueOf(image.transparentColor);
            png_set_tRNS(png, info, nullptr, 0, &key);
        }
        png_write_info(png, info);
        // Colour words lie in memory as blue, green, red, transparency.
        png_set_bgr(png);
        if (alpha)
            png_set_invert_alpha(png);
        else
            png_set_filler(png, 0, PNG_FILLER_AFTER);
    }
    png_write_image(png, job.rows.data());
    png_write_end(png, info);
    return true;
}

bool PNGCodec::encodePixels(qlx::ostream &out, const int *pixels, int width, int height) {
    PixelImage image(pixels, width, height);
    if (!image.isValid()) return false;
    image.bgTransparent = image.hasAlpha();
    return encode(out, image);
}

bool PNGCodec::decode(const char *data, int length, int width, int height, int *pixels,
                      std::string *error) {
    if (!pixels || width <= 0 || height <= 0) return false;
    ReadJob job;
    job.reader = {reinterpret_cast<const unsigned char *>(data),
                  data && length > 0 ? (size_t)length : 0, 0};
    job.width = width;
    job.height = height;
    job.pixels = pixels;
    job.rows.resize(height);
    bool ok = false;
    job.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &job.errors, onError, onWarning);
    if (job.png) {
        job.info = png_create_info_struct(job.png);
        ok = job.info && runRead(job);
        png_destroy_read_struct(&job.png, &job.info, nullptr);
    }
    if (ok) {
        convertRows(pixels, width * height);
    } else {
        std::fill(pixels, pixels + (size_t)width * height, kTransparent);
        if (error) *error = job.errors.message;
    }
    return ok;
}

bool PNGCodec::runRead(ReadJob &job) {
    if (setjmp(png_jmpbuf(job.png))) return false;
    png_structp png = job.png;
    png_infop info = job.info;
    png_set_read_fn(png, &job.reader, readFromMemory);
    png_set_chunk_malloc_max(png, 8000000);
    png_read_info(png, info);
    png_uint_32 width, height;
    int depth, colorType, interlace;
    png_get_IHDR(png, info, &width, &height, &depth, &colorType, &interlace, nullptr, nullptr);
    if ((int)width != job.width || (int)height != job.height) png_error(png, "Size mismatch");

    if (colorType == PNG_COLOR_TYPE_PALETTE) png_set_palette_to_rgb(png);
    if (colorType == PNG_COLOR_TYPE_GRAY && depth < 8) png_set_expand_gray_1_2_4_to_8(png);
    if (png_get_valid(png, info, PNG_INFO_tRNS)) png_set_tRNS_to_alpha(png);
    if (depth == 16) png_set_strip_16(png);
    if (colorType == PNG_COLOR_TYPE_GRAY || colorType == PNG_COLOR_TYPE_GRAY_ALPHA)
        png_set_gray_to_rgb(png);
    png_set_filler(png, 0xff, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    if (png_get_rowbytes(png, info) != (png_size_t)job.width * 4) png_error(png, "Bad row size");

    for (int y = 0; y < job.height; ++y)
        job.rows[y] = reinterpret_cast<png_bytep>(job.pixels + (size_t)y * job.width);
    png_read_image(png, job.rows.data());
    return true;
}

// RGBA bytes to colour words, in place: both take four bytes a pixel.
void PNGCodec::convertRows(int *pixels, int count) {
    unsigned char *bytes = reinterpret_cast<unsigned char *>(pixels);
    for (int i = 0; i < count; ++i) {
        const unsigned char *p = bytes + (size_t)i * 4;
        pixels[i] = PixelImage::makeColor(255 - p[3], p[0], p[1], p[2]);
    }
}
