#pragma once

// Reserved ranges of the 32-bit colour word: transparency in the top byte
// (0 opaque, 255 transparent), then red, green, blue.
constexpr int kTransparent = (int)0xFF000000u;
constexpr int kPalette = (int)0xFFFF0000u;
constexpr int kBackgroundColor = (int)0xFFFF0000u;
constexpr int kLineColor = (int)0xFFFF0001u;
constexpr int kTextColor = (int)0xFFFF0002u;
constexpr int kSameAsMainColor = (int)0xFFFF0007u;
constexpr int kDataColor = (int)0xFFFF0008u;
// The palette word that stands for "no colour".
constexpr int kNoColor = (int)0xFFFFFFFFu;
// Dynamic colour handles are kDynamicColorBase + n, n below kMaxDynamicColors.
constexpr int kDynamicColorBase = (int)0xFFFE0000u;
constexpr int kMaxDynamicColors = 65536;
// Compact metal codes: kMetalColorBase or'd with the angle, texture and colour bits.
constexpr int kMetalColorBase = (int)0xFF800000u;
// Palette words 4 to 6 are filled by the drawing context, so they are kept
// untranslated where a colour is derived from them.
constexpr int kContextColor = (int)0xFFFF0004u;
constexpr int kMaxColorTableSize = 32768;

// Dash patterns: run lengths in pixels, from the top byte down: on, off, on, off.
constexpr int kDashLine = 0x0505;
constexpr int kDotLine = 0x0202;
constexpr int kDotDashLine = 0x05050205;
constexpr int kAltDashLine = 0x0A050505;

// Glass effect without the glare band.
constexpr int kNoGlare = 1;

// Brushed metal textures.
constexpr int kNoTexture = 0;
constexpr int kFineTexture = 1;
constexpr int kMediumTexture = 2;
constexpr int kCoarseTexture = 3;

namespace ColorWord {

inline bool isPaletteWord(int c) {
    return ((unsigned)c >> 16) == 0xFFFFu;
}
inline bool isDynamicHandle(int c) {
    return ((unsigned)c >> 16) == 0xFFFEu;
}
inline bool isMetalCode(int c) {
    return ((unsigned)c >> 20) == 0xFF8u;
}
inline int dynamicIndex(int c) {
    return c & 0xFFFF;
}
inline int paletteIndex(int c) {
    return c & 0xFFFF;
}
// Palette words 4 to 7: context colours and kSameAsMainColor.
inline bool isContextWord(int c) {
    return (unsigned)c >= (unsigned)kContextColor && (unsigned)c <= (unsigned)kSameAsMainColor;
}
inline int alphaByte(int c) {
    return (int)((unsigned)c >> 24);
}
// A word that can leave a mark: not wholly transparent, or a dynamic colour,
// whose brush decides pixel by pixel.
inline bool paints(int c) {
    return alphaByte(c) != 255 || isDynamicHandle(c);
}

}  // namespace ColorWord
