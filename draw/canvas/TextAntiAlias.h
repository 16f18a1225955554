#pragma once

// Text anti-alias modes: the word handed to text creation holds the mode in its
// low 6 bits (a ClearType word keeps a gamma above them) and the hint in bits 16
// to 19; bit 20 forces the auto-hinter.
namespace TextAntiAlias {

constexpr int kNoAntiAlias = 0;
constexpr int kAntiAlias = 1;
constexpr int kAutoAntiAlias = 2;
constexpr int kClearType = 3;
constexpr int kCompatAntiAlias = 6;

int clearTypeColor(double gamma);
int clearTypeMono(double gamma);

// The process default built from a "@TextAA" setting text; null means unset.
int parseSetting(const char *text);

// The mode word for a canvas's antiAliasText value.
int modeWord(int antiAliasText, int defaultTextAA);

}  // namespace TextAntiAlias
