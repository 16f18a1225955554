#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "draw/codec/BMPCodec.h"
#include "draw/codec/GIFDecoder.h"
#include "draw/codec/GIFEncoder.h"
#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageEncoder.h"
#include "foundation/Constants.h"
#include "tests/draw/codec/CodecTestSupport.h"

using namespace codectest;

namespace {

std::string encodeAs(const PixelImage &image, int type, const char *alpha = nullptr) {
    qlx::ostrstream out;
    EXPECT_TRUE(ImageEncoder::encode(out, image, type, 80, alpha));
    return bytesOf(out);
}

std::vector<int> decodeAs(const std::string &bytes, int type, int w, int h) {
    std::vector<int> back((size_t)w * h, 0x5a5a5a);
    EXPECT_TRUE(
        ImageDecoder::decodeImage(bytes.data(), (int)bytes.size(), type, w, h, back.data()));
    return back;
}

unsigned le(const std::string &b, int at, int n) {
    unsigned v = 0;
    for (int i = n - 1; i >= 0; --i) v = v << 8 | (unsigned char)b[at + i];
    return v;
}

}  // namespace

TEST(CodecGIF, RoundTripsPaletteImages) {
    struct Case {
        int w, h, colors;
        bool interlace;
    } cases[] = {{1, 1, 1, false},    {7, 3, 2, false},    {7, 13, 2, true},
                 {33, 17, 5, true},   {64, 64, 16, false}, {300, 200, 256, false},
                 {251, 97, 200, true}};
    for (const Case &c : cases) {
        // Random noise of 256 colours fills the code table several times over.
        std::vector<int> pixels = randomPalettePixels(c.w, c.h, c.colors, (unsigned)c.w);
        PixelImage image(pixels.data(), c.w, c.h);
        image.interlace = c.interlace;
        std::string bytes = encodeAs(image, kGIF);
        EXPECT_EQ(bytes.substr(0, 6), "GIF87a");
        EXPECT_EQ(bytes.back(), ';');
        EXPECT_EQ(decodeAs(bytes, kGIF, c.w, c.h), pixels) << c.w << "x" << c.h;
    }

    // Transparency: the transparent colour and invisible pixels come back as kTransparent.
    std::vector<int> pixels = chartPixels(50, 40);
    pixels[3] = kTransparent;
    pixels[4] = (int)0xc0ff0000;
    PixelImage image(pixels.data(), 50, 40);
    image.transparentColor = 0xc0c0c0;
    std::string bytes = encodeAs(image, kGIF);
    EXPECT_EQ(bytes.substr(0, 6), "GIF89a");
    std::vector<int> back = decodeAs(bytes, kGIF, 50, 40);
    for (size_t i = 0; i < pixels.size(); ++i) {
        bool invisible = pixels[i] == 0xc0c0c0 || PixelImage::alphaOf(pixels[i]) >= 128;
        ASSERT_EQ(back[i], invisible ? kTransparent : pixels[i]) << i;
    }
}

TEST(CodecGIF, EncoderWritesTheGrammar) {
    unsigned char indexes[] = {0, 1, 1, 0};
    int palette[] = {0x000000, 0xffffff};
    qlx::ostrstream out;
    ASSERT_TRUE(GIFEncoder::encode(out, indexes, 2, 2, palette, 2, 1, false));
    std::string b = bytesOf(out);
    EXPECT_EQ(b.substr(0, 6), "GIF89a");
    EXPECT_EQ(le(b, 6, 2), 2u);
    EXPECT_EQ(le(b, 8, 2), 2u);
    EXPECT_EQ((unsigned char)b[10], 0x80);  // global table of 2 entries
    EXPECT_EQ(b.substr(13, 6), std::string("\0\0\0\xff\xff\xff", 6));
    EXPECT_EQ(b.substr(19, 8), std::string("\x21\xf9\x04\x01\0\0\x01\0", 8));
    EXPECT_EQ(b[27], ',');
    EXPECT_EQ((unsigned char)b[37], 2);  // minimum code size

    out.reset();
    EXPECT_FALSE(GIFEncoder::encode(out, indexes, 0, 2, palette, 2, -1, false));
    EXPECT_FALSE(GIFEncoder::encode(out, indexes, 2, 2, palette, 300, -1, false));
}

TEST(CodecGIF, DecoderRefusesBadFiles) {
    std::vector<int> pixels = randomPalettePixels(20, 10, 6, 3);
    PixelImage image(pixels.data(), 20, 10);
    std::string good = encodeAs(image, kGIF);
    std::vector<int> back(200);
    auto fails = [&](const std::string &bytes, int w = 20, int h = 10) {
        back.assign((size_t)w * h, 1);
        bool ok = GIFDecoder::decode(bytes.data(), (int)bytes.size(), w, h, back.data());
        for (int p : back) EXPECT_EQ(p, kTransparent);
        return !ok;
    };
    EXPECT_TRUE(fails(good.substr(0, good.size() / 2)));
    EXPECT_TRUE(fails("GIF88a" + good.substr(6)));
    EXPECT_TRUE(fails(good, 21, 10));
    std::string noImage = good.substr(0, 13 + 3 * 8) + ";";
    EXPECT_TRUE(fails(noImage));
    std::string badCodeSize = good;
    badCodeSize[13 + 24 + 10] = 12;
    EXPECT_TRUE(fails(badCodeSize));

    // Extensions other than graphic control are skipped block by block.
    std::string comment = good.substr(0, 37) +
                          std::string(
                              "\x21\xfe\x03"
                              "abc\x02xy\0",
                              10) +
                          good.substr(37);
    back.assign(200, 1);
    EXPECT_TRUE(GIFDecoder::decode(comment.data(), (int)comment.size(), 20, 10, back.data()));
    EXPECT_EQ(back, pixels);
}

TEST(CodecBMP, PaletteAndTrueColourFiles) {
    struct Case {
        int colors, bits;
    } cases[] = {{2, 1}, {3, 4}, {16, 4}, {17, 8}, {256, 8}};
    for (const Case &c : cases) {
        std::vector<int> pixels = randomPalettePixels(23, 13, c.colors, (unsigned)c.colors);
        PixelImage image(pixels.data(), 23, 13);
        std::string bytes = encodeAs(image, kBMP);
        EXPECT_EQ(bytes.substr(0, 2), "BM");
        EXPECT_EQ(le(bytes, 2, 4), bytes.size());
        EXPECT_EQ(le(bytes, 10, 4), 54u + 4 * c.colors);
        EXPECT_EQ(le(bytes, 14, 4), 40u);
        EXPECT_EQ(le(bytes, 28, 2), (unsigned)c.bits);
        EXPECT_EQ(le(bytes, 46, 4), (unsigned)c.colors);
        EXPECT_EQ((bytes.size() - le(bytes, 10, 4)) % 4, 0u);
        EXPECT_EQ(decodeAs(bytes, kBMP, 23, 13), pixels) << c.colors;
    }

    // Too many colours, or no palette wanted: 24-bit rows.
    std::vector<int> pixels = randomPalettePixels(9, 5, 45, 9, 4);
    std::vector<int> opaque = pixels;
    for (int &p : opaque) p &= 0xffffff;
    for (int mode : {(int)kNoPalette, 130}) {
        PixelImage image(opaque.data(), 9, 5);
        image.paletteMode = mode;
        std::string bytes = encodeAs(image, kBMP);
        EXPECT_EQ(le(bytes, 28, 2), 24u);
        EXPECT_EQ(bytes.size(), 54u + 5 * 28);
        EXPECT_EQ(decodeAs(bytes, kBMP, 9, 5), opaque);
    }

    // The "alpha" option: 2 is 24-bit, 4 is 32-bit, others and empty 32-bit when needed.
    PixelImage withAlpha(pixels.data(), 9, 5);
    PixelImage opaqueImage(opaque.data(), 9, 5);
    EXPECT_EQ(le(encodeAs(withAlpha, kBMP, "2"), 28, 2), 24u);
    EXPECT_EQ(le(encodeAs(opaqueImage, kBMP, "4"), 28, 2), 32u);
    EXPECT_EQ(le(encodeAs(opaqueImage, kBMP, "1"), 28, 2), 24u);
    EXPECT_EQ(le(encodeAs(opaqueImage, kBMP, ""), 28, 2), 24u);
    std::string bytes = encodeAs(withAlpha, kBMP, "");
    EXPECT_EQ(le(bytes, 28, 2), 32u);
    EXPECT_EQ(decodeAs(bytes, kBMP, 9, 5), pixels);
    EXPECT_EQ(le(encodeAs(withAlpha, kBMP, "0"), 28, 2), 8u);
}

TEST(CodecBMP, DecoderRefusesWhatItCannotRead) {
    std::vector<int> pixels = randomPalettePixels(6, 4, 3, 2);
    PixelImage image(pixels.data(), 6, 4);
    std::string good = encodeAs(image, kBMP);
    std::vector<int> back(24);
    auto fails = [&](std::string bytes, int h = 4) {
        back.assign((size_t)6 * h, 1);
        bool ok = BMPCodec::decode(bytes.data(), (int)bytes.size(), 6, h, back.data());
        for (int p : back) EXPECT_EQ(p, kTransparent);
        return !ok;
    };
    std::string topDown = good;
    topDown.replace(22, 4, std::string("\xfc\xff\xff\xff", 4));  // height -4
    EXPECT_TRUE(fails(topDown, 4));
    EXPECT_TRUE(fails(good.substr(0, good.size() - 1)));
    EXPECT_TRUE(fails(good, 3));
    std::string compressed = good;
    compressed[30] = 1;
    EXPECT_TRUE(fails(compressed));
    std::string depth = good;
    depth[28] = 16;
    EXPECT_TRUE(fails(depth));
    std::string offset = good;
    offset.replace(10, 4, std::string("\xff\xff\xff\x7f", 4));
    EXPECT_TRUE(fails(offset));
}

TEST(CodecWBMP, HeaderAndBits) {
    std::vector<int> pixels(200 * 3, 0xffffff);
    pixels[0] = 0x000000;
    pixels[199] = 0x101010;
    pixels[200 + 8] = 0x202020;
    PixelImage image(pixels.data(), 200, 3);
    std::string b = encodeAs(image, kWMP);
    // Type 0, fix header 0, 200 as two bytes of seven bits, 3 as one.
    ASSERT_EQ(b.substr(0, 5), std::string("\0\0\x81\x48\x03", 5));
    ASSERT_EQ(b.size(), 5u + 25 * 3);
    EXPECT_EQ((unsigned char)b[5], 0x7f);
    EXPECT_EQ((unsigned char)b[5 + 24], 0xfe);
    EXPECT_EQ((unsigned char)b[5 + 25 + 1], 0x7f);
    EXPECT_EQ((unsigned char)b[5 + 50], 0xff);
}

TEST(CodecOutputs, AlphaBytesAndUnknownTypes) {
    int pixels[] = {0x123456, (int)0x80123456, kTransparent, 0x01000000};
    PixelImage image(pixels, 2, 2);
    qlx::ostrstream out;
    ASSERT_TRUE(ImageEncoder::encodeAlpha(out, image));
    EXPECT_EQ(bytesOf(out), std::string("\0\x80\xff\x01", 4));
    out.reset();
    EXPECT_FALSE(ImageEncoder::encode(out, image, kSVG));
    EXPECT_FALSE(ImageEncoder::encode(out, PixelImage(nullptr, 2, 2), kPNG));
    EXPECT_EQ(out.tell(), 0);
}
