#pragma once

#include "text/unicode/Bidi.h"

// The character tables of the bidirectional rules and of Arabic shaping,
// generated from the Unicode Character Database (scripts/gen_bidi_tables.py).
// All are sorted by their first field.

// Characters not in a range are strong left to right.
struct BidiRange {
    unsigned short first;
    unsigned short last;
    unsigned char type;
};

struct MirrorPair {
    unsigned short ch;
    unsigned short mirror;
};

// Presentation forms of one Arabic letter; 0 where the form doesn't exist.
struct ArabicForms {
    unsigned short ch;
    unsigned char dual;  // joins on both sides
    unsigned short isolated;
    unsigned short final;
    unsigned short initial;
    unsigned short medial;
};

// The ligature of lam with an alef form.
struct LamAlef {
    unsigned short alef;
    unsigned short isolated;
    unsigned short final;
};

// Joining type ('D', 'R', 'L', 'C', 'T') of stretches of the Arabic blocks.
struct JoiningRange {
    unsigned short first;
    unsigned short last;
    char type;
};

extern const BidiRange kBidiRanges[];
extern const int kBidiRangeCount;
extern const MirrorPair kMirrorPairs[];
extern const int kMirrorPairCount;
extern const ArabicForms kArabicForms[];
extern const int kArabicFormCount;
extern const LamAlef kLamAlefs[];
extern const int kLamAlefCount;
extern const JoiningRange kJoiningRanges[];
extern const int kJoiningRangeCount;
