#include <gtest/gtest.h>
#include <zlib.h>

#include <clocale>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "foundation/CLocale.h"
#include "foundation/Codec.h"
#include "foundation/Unicode.h"

static std::wstring decode(const char *s, int expectOk = 1) {
    std::vector<wchar_t> buffer(strlen(s) + 1);
    EXPECT_EQ(qlx::UTF8toUTF16(buffer.data(), s), expectOk);
    return std::wstring(buffer.data());
}

static std::string encode(const std::wstring &w) {
    std::vector<char> buffer(w.size() * 3 + 1);
    qlx::UTF16toUTF8(buffer.data(), w.c_str());
    return std::string(buffer.data());
}

TEST(Unicode, RoundTripsAndTheSurrogateAsymmetry) {
    std::wstring euro = decode("\xE2\x82\xAC");
    ASSERT_EQ(euro.size(), 1u);
    EXPECT_EQ(euro[0], 0x20AC);
    EXPECT_EQ(encode(euro), "\xE2\x82\xAC");

    std::wstring clef = decode("\xF0\x9D\x84\x9E");  // U+1D11E
    ASSERT_EQ(clef.size(), 2u);
    EXPECT_EQ(clef[0], 0xD834);
    EXPECT_EQ(clef[1], 0xDD1E);
    // Halves are written one by one: six bytes.
    EXPECT_EQ(encode(clef), "\xED\xA0\xB4\xED\xB4\x9E");

    EXPECT_EQ(decode("a\xC3\xA9z"), L"a\u00e9z");
    EXPECT_EQ(encode(L"a\u00e9z"), "a\xC3\xA9z");
    EXPECT_EQ(decode("\xF8\x88\x80\x80\x80")[0], 0xFFFD);  // beyond 0x10FFFF
    EXPECT_EQ(decode("\x85")[0], 0x85);                    // stray continuation byte
    decode("\xC3(", 0);
    decode("\xE2\x82", 0);  // the terminator is no continuation byte

    wchar_t wide[16];
    EXPECT_EQ(std::wstring(qlx::toWCS(wide, "x\xC3\xA9")), L"x\u00e9");
    // Malformed UTF-8 falls back; in the C locale each byte is widened alone.
    std::wstring fallback = qlx::toWCS(wide,
                                       "a\xE9"
                                       "b");
    ASSERT_EQ(fallback.size(), 3u);
    EXPECT_EQ(fallback[0], L'a');
    EXPECT_EQ(fallback[2], L'b');
}

TEST(Unicode, RandomCodePointsSurviveDecodeOfTheirEncoding) {
    std::mt19937 rng(3);
    for (int i = 0; i < 2000; ++i) {
        unsigned code = 1 + rng() % 0xFFFF;
        if (code >= 0xD800 && code < 0xE000) continue;
        std::wstring w(1, (wchar_t)code);
        EXPECT_EQ(decode(encode(w).c_str()), w);
    }
}

TEST(CLocale, NumbersIgnoreTheActiveLocale) {
    EXPECT_DOUBLE_EQ(qlx::atofCLocale("1.25"), 1.25);
    EXPECT_DOUBLE_EQ(qlx::atofCLocale("-3"), -3);
    char text[] = "1.5";
    EXPECT_STREQ(qlx::convertToCLocale(text), "1.5");
    EXPECT_EQ(qlx::convertToCLocale(nullptr), nullptr);
    const char *german = setlocale(LC_NUMERIC, "de_DE.UTF-8");
    if (german) {
        EXPECT_DOUBLE_EQ(qlx::atofCLocale("1.25"), 1.25);
        char printed[32];
        snprintf(printed, sizeof(printed), "%.2f", 2.5);
        EXPECT_STREQ(qlx::convertToCLocale(printed), "2.50");
        setlocale(LC_NUMERIC, "C");
    }
}

TEST(Codec, Base64Padding) {
    char out[64];
    EXPECT_STREQ(qlx::b64Encode(out, "", 0), "");
    EXPECT_STREQ(qlx::b64Encode(out, "a", 1), "YQ==");
    EXPECT_STREQ(qlx::b64Encode(out, "ab", 2), "YWI=");
    EXPECT_STREQ(qlx::b64Encode(out, "abc", 3), "YWJj");
    EXPECT_STREQ(qlx::b64Encode(out, "\xff\xfe\xfd\x00", 4), "//79AA==");
    EXPECT_EQ(qlx::getB64EncodeBufferSize(4), 9);
    EXPECT_EQ((int)strlen(out) + 1, qlx::getB64EncodeBufferSize(4));
}

static std::string sampleText(int n) {
    std::mt19937 rng(11);
    std::string s;
    for (int i = 0; i < n; ++i) s += (rng() % 4 == 0) ? (char)(rng() % 256) : "chart "[i % 6];
    return s;
}

TEST(Codec, GzipStreamInflatesWithCrcAndLength) {
    for (int n : {0, 1, 1000, 100000}) {
        std::string input = sampleText(n);
        std::vector<char> packed(qlx::getGzipBufferSize(n));
        int size = qlx::gzipCompress(packed.data(), (int)packed.size(), input.data(), n, 6);
        ASSERT_GT(size, 18);
        const unsigned char *p = (const unsigned char *)packed.data();
        EXPECT_EQ(p[0], 0x1F);
        EXPECT_EQ(p[1], 0x8B);
        EXPECT_EQ(p[2], 8);
        EXPECT_EQ(p[8], 2);
        EXPECT_EQ(p[9], 0xFF);
        unsigned length =
            p[size - 4] | p[size - 3] << 8 | p[size - 2] << 16 | (unsigned)p[size - 1] << 24;
        EXPECT_EQ(length, (unsigned)n);

        // zlib's own gzip reader checks the CRC and the length.
        z_stream stream = {};
        ASSERT_EQ(inflateInit2(&stream, 16 + 15), Z_OK);
        std::vector<char> out(n + 1);
        stream.next_in = (Bytef *)packed.data();
        stream.avail_in = size;
        stream.next_out = (Bytef *)out.data();
        stream.avail_out = (uInt)out.size();
        EXPECT_EQ(inflate(&stream, Z_FINISH), Z_STREAM_END);
        EXPECT_EQ((int)stream.total_out, n);
        inflateEnd(&stream);
        EXPECT_EQ(std::string(out.data(), n), input);
    }
}

TEST(Codec, ZlibRoundTripAndShortBuffers) {
    std::string input = sampleText(5000);
    std::vector<char> packed(qlx::getZlibBufferSize((int)input.size()));
    int size =
        qlx::zlibCompress(packed.data(), (int)packed.size(), input.data(), (int)input.size(), 9);
    ASSERT_GT(size, 0);
    std::vector<char> out(input.size());
    uLongf outLen = out.size();
    ASSERT_EQ(uncompress((Bytef *)out.data(), &outLen, (const Bytef *)packed.data(), size), Z_OK);
    EXPECT_EQ(std::string(out.data(), outLen), input);

    char tiny[30];
    EXPECT_EQ(qlx::zlibCompress(tiny, 8, input.data(), (int)input.size(), 6), 0);
    EXPECT_EQ(qlx::gzipCompress(tiny, (int)sizeof(tiny), input.data(), (int)input.size(), 6), 0);
    EXPECT_EQ(qlx::getZlibBufferSize(100), 114);
    EXPECT_EQ(qlx::getGzipBufferSize(100), 132);
}
