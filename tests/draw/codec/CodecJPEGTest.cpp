#include <gtest/gtest.h>

#include <csetjmp>
#include <cstdio>
#include <string>
#include <vector>

#include <jpeglib.h>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageEncoder.h"
#include "draw/codec/JPEGCodec.h"
#include "foundation/Constants.h"
#include "tests/draw/codec/CodecTestSupport.h"

using namespace codectest;

namespace {

struct JpegFacts {
    bool ok = false;
    int width = 0, height = 0, components = 0;
    bool progressive = false;
    std::vector<unsigned char> rgb;
};

struct TestErrors {
    jpeg_error_mgr base;
    jmp_buf jump;
};

void testErrorExit(j_common_ptr cinfo) {
    longjmp(((TestErrors *)cinfo->err)->jump, 1);
}

// libjpeg's own memory reader, independent of the engine's decoder.
JpegFacts readJpeg(const std::string &bytes) {
    JpegFacts f;
    jpeg_decompress_struct cinfo;
    TestErrors errors;
    cinfo.err = jpeg_std_error(&errors.base);
    errors.base.error_exit = testErrorExit;
    jpeg_create_decompress(&cinfo);
    if (setjmp(errors.jump)) {
        jpeg_destroy_decompress(&cinfo);
        return JpegFacts();
    }
    jpeg_mem_src(&cinfo, (const unsigned char *)bytes.data(), (unsigned long)bytes.size());
    jpeg_read_header(&cinfo, TRUE);
    f.progressive = jpeg_has_multiple_scans(&cinfo);
    cinfo.out_color_space = JCS_RGB;
    jpeg_start_decompress(&cinfo);
    f.width = (int)cinfo.output_width;
    f.height = (int)cinfo.output_height;
    f.components = cinfo.num_components;
    f.rgb.resize((size_t)f.width * f.height * 3);
    while (cinfo.output_scanline < cinfo.output_height) {
        JSAMPROW row = &f.rgb[(size_t)cinfo.output_scanline * f.width * 3];
        jpeg_read_scanlines(&cinfo, &row, 1);
    }
    jpeg_finish_decompress(&cinfo);
    jpeg_destroy_decompress(&cinfo);
    f.ok = true;
    return f;
}

std::string encodeJpeg(const PixelImage &image, int quality) {
    qlx::ostrstream out;
    EXPECT_TRUE(ImageEncoder::encode(out, image, kJPG, quality));
    return bytesOf(out);
}

double meanChannelError(const std::vector<int> &a, const std::vector<int> &b) {
    long total = 0;
    for (size_t i = 2; i < a.size(); ++i)
        for (int shift : {0, 8, 16})
            total += abs(((a[i] >> shift) & 0xff) - ((b[i] >> shift) & 0xff));
    return (double)total / (3.0 * (a.size() - 2));
}

}  // namespace

TEST(CodecJPEG, WritesBaselineOrProgressiveRGB) {
    // Wider than the 8192-byte output buffer so it is emptied several times.
    std::vector<int> pixels = chartPixels(400, 300);
    pixels[0] = kTransparent;
    pixels[1] = 0x80000000;  // half transparent black
    PixelImage image(pixels.data(), 400, 300);
    for (int interlace = 0; interlace < 2; ++interlace) {
        image.interlace = interlace;
        std::string bytes = encodeJpeg(image, 90);
        ASSERT_GT(bytes.size(), 8192u);
        JpegFacts f = readJpeg(bytes);
        ASSERT_TRUE(f.ok);
        EXPECT_EQ(f.width, 400);
        EXPECT_EQ(f.height, 300);
        EXPECT_EQ(f.components, 3);
        EXPECT_EQ(f.progressive, interlace == 1);
        // Transparent pixels are seen over white.
        EXPECT_GE(f.rgb[0], 240);
        EXPECT_NEAR(f.rgb[3], 128, 24);

        std::vector<int> back(400 * 300);
        ASSERT_TRUE(ImageDecoder::decodeImage(bytes.data(), (int)bytes.size(), kJPG, 400, 300,
                                              back.data()));
        for (size_t i = 0; i < back.size(); ++i)
            ASSERT_EQ(back[i],
                      PixelImage::makeColor(0, f.rgb[i * 3], f.rgb[i * 3 + 1], f.rgb[i * 3 + 2]));
    }

    // Quality trades size for fidelity.
    image.interlace = 0;
    std::string low = encodeJpeg(image, 10), high = encodeJpeg(image, 100);
    EXPECT_LT(low.size(), high.size());
    std::vector<int> backLow(400 * 300), backHigh(400 * 300);
    ASSERT_TRUE(JPEGCodec::decode(low.data(), (int)low.size(), 400, 300, backLow.data()));
    ASSERT_TRUE(JPEGCodec::decode(high.data(), (int)high.size(), 400, 300, backHigh.data()));
    // Past the two transparent pixels.
    EXPECT_LT(meanChannelError(pixels, backHigh), 1.5);
    EXPECT_LT(meanChannelError(pixels, backHigh), meanChannelError(pixels, backLow));
}

TEST(CodecJPEG, BadInputNeverEndsTheProcess) {
    std::vector<int> pixels = chartPixels(64, 64);
    std::string bytes = encodeJpeg(PixelImage(pixels.data(), 64, 64), 80);
    std::vector<int> back(64 * 64);

    // Cut short: libjpeg warns and pads, which still decodes.
    EXPECT_TRUE(JPEGCodec::decode(bytes.data(), (int)bytes.size() - 200, 64, 64, back.data()));

    // Headers gone, wrong size, garbage: all fail cleanly to a transparent image.
    std::string garbage(500, '\x55');
    garbage[0] = (char)0xff;
    garbage[1] = (char)0xd8;
    struct Case {
        std::string data;
        int w, h;
    } cases[] = {{bytes.substr(0, 100), 64, 64}, {bytes, 64, 65}, {garbage, 64, 64}, {"", 64, 64}};
    for (const Case &c : cases) {
        back.assign((size_t)c.w * c.h, 1);
        EXPECT_FALSE(JPEGCodec::decode(c.data.data(), (int)c.data.size(), c.w, c.h, back.data()));
        for (int p : back) ASSERT_EQ(p, kTransparent);
    }
}
