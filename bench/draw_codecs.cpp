#include <benchmark/benchmark.h>

#include <vector>

#include "draw/codec/ImageDecoder.h"
#include "draw/codec/ImageEncoder.h"
#include "foundation/Constants.h"
#include "foundation/Stream.h"

namespace {

const int kWidth = 800;
const int kHeight = 600;

// Background, grid, bars, an anti-aliased-looking line and a gradient band:
// a few hundred colours, as charts have.
std::vector<int> chartImage() {
    std::vector<int> p((size_t)kWidth * kHeight, 0xffffff);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            int &c = p[(size_t)y * kWidth + x];
            if (y < 40) c = 0x000080 + (y * 4 << 8);
            if (y % 60 == 0 || x % 100 == 0) c = 0xdddddd;
            int bar = x / 100;
            if (x % 100 > 20 && x % 100 < 70 && y > 560 - bar * 60) c = 0x3366cc + bar * 0x101000;
            int lineY = 300 + (x * 7 % 200) - 100;
            int d = y - lineY;
            if (d >= -1 && d <= 1) c = 0xcc0000 | ((d + 1) * 60) << 8;
        }
    return p;
}

void encodeLoop(benchmark::State &state, int type, int paletteMode) {
    std::vector<int> pixels = chartImage();
    PixelImage image(pixels.data(), kWidth, kHeight);
    image.paletteMode = paletteMode;
    qlx::ostrstream out;
    for (auto _ : state) {
        out.reset();
        ImageEncoder::encode(out, image, type, 80);
        benchmark::DoNotOptimize(out.tell());
    }
    state.counters["bytes"] = out.tell();
}

void BM_EncodePNGPalette(benchmark::State &state) {
    encodeLoop(state, kPNG, kTryPalette);
}
void BM_EncodePNGTrueColour(benchmark::State &state) {
    encodeLoop(state, kPNG, kNoPalette);
}
void BM_EncodePNGFastest(benchmark::State &state) {
    encodeLoop(state, kPNG, 129);
}
void BM_EncodeGIF(benchmark::State &state) {
    encodeLoop(state, kGIF, kTryPalette);
}
void BM_EncodeGIFQuantized(benchmark::State &state) {
    std::vector<int> pixels = chartImage();
    for (size_t i = 0; i < pixels.size(); i += 3) pixels[i] ^= (int)(i & 0x0f0f0f);
    PixelImage image(pixels.data(), kWidth, kHeight);
    image.ditherMethod = (int)state.range(0);
    qlx::ostrstream out;
    for (auto _ : state) {
        out.reset();
        ImageEncoder::encode(out, image, kGIF);
    }
    state.counters["bytes"] = out.tell();
}
void BM_EncodeJPEG(benchmark::State &state) {
    encodeLoop(state, kJPG, kTryPalette);
}

void decodeLoop(benchmark::State &state, int type) {
    std::vector<int> pixels = chartImage();
    qlx::ostrstream out;
    ImageEncoder::encode(out, PixelImage(pixels.data(), kWidth, kHeight), type, 80);
    std::vector<int> back(pixels.size());
    for (auto _ : state)
        ImageDecoder::decodeImage(out.str(), out.tell(), type, kWidth, kHeight, back.data());
}

void BM_DecodePNG(benchmark::State &state) {
    decodeLoop(state, kPNG);
}
void BM_DecodeGIF(benchmark::State &state) {
    decodeLoop(state, kGIF);
}
void BM_DecodeJPEG(benchmark::State &state) {
    decodeLoop(state, kJPG);
}

}  // namespace

BENCHMARK(BM_EncodePNGPalette)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EncodePNGTrueColour)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EncodePNGFastest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EncodeGIF)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EncodeGIFQuantized)
    ->Arg(kQuantize)
    ->Arg(kOrderedDither)
    ->Arg(kErrorDiffusion)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EncodeJPEG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DecodePNG)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DecodeGIF)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DecodeJPEG)->Unit(benchmark::kMillisecond);
