#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageEncoder.h"
#include "draw/codec/PNGCodec.h"
#include "foundation/Constants.h"
#include "tests/draw/codec/CodecTestSupport.h"

using namespace codectest;

namespace {

std::string encodePng(const PixelImage &image) {
    qlx::ostrstream out;
    EXPECT_TRUE(ImageEncoder::encode(out, image, kPNG));
    return bytesOf(out);
}

}  // namespace

TEST(CodecPNG, PaletteDepthFollowsColourCount) {
    struct Case {
        int colors, depth;
    } cases[] = {{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 4}, {16, 4}, {17, 8}, {256, 8}};
    for (const Case &c : cases) {
        std::vector<int> pixels = randomPalettePixels(31, 17, c.colors, (unsigned)c.colors);
        PixelImage image(pixels.data(), 31, 17);
        PngFacts f = readPng(encodePng(image));
        ASSERT_TRUE(f.ok) << c.colors;
        EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_PALETTE) << c.colors;
        EXPECT_EQ(f.bitDepth, c.depth) << c.colors;
        EXPECT_EQ(f.paletteCount, c.colors);
        EXPECT_FALSE(f.hasTRNS);
        EXPECT_EQ(f.width, 31);
        EXPECT_EQ(f.height, 17);
        for (size_t i = 0; i < pixels.size(); ++i) ASSERT_EQ(wordOf(f.rgba, i), pixels[i]) << i;
    }
}

TEST(CodecPNG, ModesChooseColourType) {
    std::vector<int> pixels = chartPixels(64, 48);
    pixels[5] = 0x80123456;  // half transparent
    pixels[6] = kTransparent;
    PixelImage image(pixels.data(), 64, 48);

    // A transparent background keeps its alpha channel, inverted to PNG's sense.
    image.paletteMode = kNoPalette;
    image.bgTransparent = true;
    PngFacts f = readPng(encodePng(image));
    ASSERT_TRUE(f.ok);
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_RGB_ALPHA);
    EXPECT_EQ(f.bitDepth, 8);
    EXPECT_EQ(f.rgba[5 * 4 + 3], 0x7f);
    EXPECT_EQ(f.rgba[6 * 4 + 3], 0);
    EXPECT_EQ(f.rgba[7 * 4 + 3], 255);

    // kTryPalette does not try with a background to keep.
    image.paletteMode = kTryPalette;
    EXPECT_EQ(readPng(encodePng(image)).colorType, PNG_COLOR_TYPE_RGB_ALPHA);

    // Opaque true colour drops the fourth byte.
    image.bgTransparent = false;
    image.paletteMode = kNoPalette;
    f = readPng(encodePng(image));
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_RGB);
    EXPECT_EQ(wordOf(f.rgba, 100), pixels[100]);
    EXPECT_EQ(wordOf(f.rgba, 5), 0x123456);

    // A transparent colour goes to tRNS as a colour key.
    image.paletteMode = kTryPalette;
    image.transparentColor = 0xffffff;
    f = readPng(encodePng(image));
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_RGB);
    ASSERT_TRUE(f.hasTRNS);
    EXPECT_EQ(f.transColor.red, 255);
    EXPECT_EQ(f.transColor.blue, 255);
    const int white = 65, blue = 47 * 64 + 40;
    EXPECT_EQ(f.rgba[white * 4 + 3], 0);
    EXPECT_EQ(f.rgba[blue * 4 + 3], 255);

    // Forcing keeps it in the palette as entry 0, invisible.
    image.paletteMode = kForcePalette;
    f = readPng(encodePng(image));
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_PALETTE);
    ASSERT_TRUE(f.hasTRNS);
    EXPECT_EQ(f.rgba[white * 4 + 3], 0);
    EXPECT_EQ(f.rgba[blue * 4 + 3], 255);

    // 128 to 137: no palette, any compression level; all decode alike.
    image.transparentColor = kTransparent;
    std::string fastest, smallest;
    for (int mode = 128; mode <= 137; ++mode) {
        image.paletteMode = mode;
        std::string bytes = encodePng(image);
        f = readPng(bytes);
        ASSERT_TRUE(f.ok) << mode;
        EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_RGB) << mode;
        EXPECT_EQ(wordOf(f.rgba, 200), pixels[200]);
        if (mode == 128) fastest = bytes;
        if (mode == 137) smallest = bytes;
    }
    EXPECT_LT(smallest.size(), fastest.size());
}

TEST(CodecPNG, ForcedPaletteOf257ColoursHas256Entries) {
    // Blues 0 to 255 and one green: the octree folds one pair of blues.
    std::vector<int> pixels(257);
    for (int i = 0; i < 257; ++i) pixels[i] = i;
    PixelImage image(pixels.data(), 257, 1);
    image.paletteMode = kForcePalette;
    PngFacts f = readPng(encodePng(image));
    ASSERT_TRUE(f.ok);
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_PALETTE);
    EXPECT_EQ(f.bitDepth, 8);
    EXPECT_EQ(f.paletteCount, 256);
    for (int i = 0; i < 257; ++i) {
        int got = wordOf(f.rgba, i);
        EXPECT_LE(abs((got & 0xff) - (i & 0xff)), 1) << i;
        EXPECT_EQ(got >> 8, i >> 8) << i;
    }

    // Without force there is no palette.
    image.paletteMode = kTryPalette;
    EXPECT_EQ(readPng(encodePng(image)).colorType, PNG_COLOR_TYPE_RGB);
}

TEST(CodecPNG, DecoderRoundTripsAndExpandsForms) {
    std::vector<int> pixels = randomPalettePixels(45, 29, 300, 7, 3);
    for (int interlace = 0; interlace < 2; ++interlace)
        for (int mode : {kNoPalette, kTryPalette, kForcePalette}) {
            PixelImage image(pixels.data(), 45, 29);
            image.bgTransparent = true;
            image.interlace = interlace;
            image.paletteMode = mode;
            std::string bytes = encodePng(image);
            EXPECT_EQ(readPng(bytes).interlace, interlace ? PNG_INTERLACE_ADAM7 : 0);
            std::vector<int> back(45 * 29, 1);
            ASSERT_TRUE(ImageDecoder::decodeImage(bytes.data(), (int)bytes.size(), kPNG, 45, 29,
                                                  back.data()));
            if (mode == kForcePalette) {
                // Quantized: a palette image, and mostly transparent pixels stay so.
                for (size_t i = 0; i < back.size(); ++i)
                    EXPECT_EQ(PixelImage::alphaOf(back[i]) == 255,
                              PixelImage::alphaOf(pixels[i]) >= 128);
            } else {
                EXPECT_EQ(back, pixels) << mode;
            }
        }

    // Gray with alpha, 16 bits: written by libpng itself.
    png_image gray = {};
    gray.version = PNG_IMAGE_VERSION;
    gray.width = 3;
    gray.height = 1;
    gray.format = PNG_FORMAT_LINEAR_Y_ALPHA;
    uint16_t graySamples[] = {0, 65535, 32768, 65535, 65535, 0};
    std::vector<char> memory(1000);
    png_alloc_size_t size = memory.size();
    ASSERT_TRUE(png_image_write_to_memory(&gray, memory.data(), &size, 0, graySamples, 0, nullptr));
    int out[3];
    ASSERT_TRUE(PNGCodec::decode(memory.data(), (int)size, 3, 1, out));
    EXPECT_EQ(out[0], 0x000000);
    EXPECT_EQ(out[1] & 0xffffff, 0x808080);  // samples as stored: no gamma
    EXPECT_EQ(PixelImage::alphaOf(out[2]), 255);
}

TEST(CodecPNG, BadInputLeavesTransparentImage) {
    std::vector<int> pixels = chartPixels(40, 30);
    PixelImage image(pixels.data(), 40, 30);
    image.paletteMode = kNoPalette;
    std::string bytes = encodePng(image);
    std::vector<int> back(40 * 30, 0x123456);

    for (size_t cut : {bytes.size() / 2, (size_t)40, (size_t)8}) {
        std::fill(back.begin(), back.end(), 0x123456);
        std::string message;
        EXPECT_FALSE(PNGCodec::decode(bytes.data(), (int)cut, 40, 30, back.data(), &message));
        EXPECT_EQ(message, "Unexpected EOF") << cut;
        for (int p : back) ASSERT_EQ(p, kTransparent);
    }

    // A declared size that isn't the file's, and a damaged chunk.
    std::vector<int> taller(40 * 31);
    EXPECT_FALSE(PNGCodec::decode(bytes.data(), (int)bytes.size(), 40, 31, taller.data()));
    EXPECT_EQ(taller[40 * 31 - 1], kTransparent);
    std::string damaged = bytes;
    damaged[20] ^= 0x40;
    std::fill(back.begin(), back.end(), 0x123456);
    EXPECT_FALSE(
        ImageDecoder::decodeImage(damaged.data(), (int)damaged.size(), kPNG, 40, 30, back.data()));
    EXPECT_EQ(back[0], kTransparent);

    // An unknown type draws nothing.
    back[0] = 7;
    EXPECT_FALSE(
        ImageDecoder::decodeImage(bytes.data(), (int)bytes.size(), kSVG, 40, 30, back.data()));
    EXPECT_EQ(back[0], 7);

    // The allocating form reads the size from the header.
    int w = 0, h = 0;
    int *block = ImageDecoder::decodeAllocated(bytes.data(), (int)bytes.size(), kPNG, &w, &h);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(w, 40);
    EXPECT_EQ(h, 30);
    EXPECT_EQ(std::vector<int>(block, block + 1200), pixels);
    free(block);
    EXPECT_EQ(ImageDecoder::decodeAllocated(bytes.data(), 30, kPNG, &w, &h), nullptr);
}

TEST(CodecPNG, BarePixelBlockKeepsAlphaOnlyWhenPresent) {
    int opaque[] = {0x102030, 0x405060, 0x102030, 0x405060};
    qlx::ostrstream out;
    ASSERT_TRUE(ImageEncoder::encodePNG(out, opaque, 2, 2));
    PngFacts f = readPng(bytesOf(out));
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_PALETTE);
    EXPECT_EQ(f.bitDepth, 1);

    int translucent[] = {0x102030, 0x40405060, 0x102030, kTransparent};
    out.reset();
    ASSERT_TRUE(ImageEncoder::encodePNG(out, translucent, 2, 2));
    f = readPng(bytesOf(out));
    EXPECT_EQ(f.colorType, PNG_COLOR_TYPE_RGB_ALPHA);
    EXPECT_EQ(f.rgba[7], 255 - 0x40);

    out.reset();
    EXPECT_FALSE(ImageEncoder::encodePNG(out, nullptr, 2, 2));
    EXPECT_FALSE(ImageEncoder::encodePNG(out, opaque, 0, 2));
    EXPECT_EQ(out.tell(), 0);
}
