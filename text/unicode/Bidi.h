#pragma once

#include <vector>

// The bidirectional rules for one run of text with no explicit embeddings:
// weak and neutral types resolved, levels 0 to 2, then visual order.
class Bidi {
public:
    enum Type {
        kL,
        kR,
        kAL,
        kEN,
        kES,
        kET,
        kAN,
        kCS,
        kNSM,
        kBN,
        kB,
        kS,
        kWS,
        kON,
        kLRE,
        kLRO,
        kRLE,
        kRLO,
        kPDF,
        kLRI,
        kRLI,
        kFSI,
        kPDI
    };

    // direction: 0 left to right, 1 right to left, -1 from the first strong
    // character (left to right when there is none).
    static int paragraphLevel(const int *chars, int n, int direction);
    static std::vector<int> resolveLevels(const int *chars, int n, int direction);
    // The same from the types of the characters.
    static int paragraphLevelOfTypes(const std::vector<int> &types, int direction);
    static std::vector<int> resolveTypeLevels(std::vector<int> types, int direction);
    // The logical index shown at each visual position.
    static std::vector<int> visualOrder(const std::vector<int> &levels);

private:
    static void resolveWeakTypes(std::vector<int> *types, int sor);
    static void resolveNeutralTypes(std::vector<int> *types, int sor, int eor);
};

namespace qlx {

// Bidirectional type (Bidi::Type) of a UTF-16 unit.
int getBidiType(int ch);
// The mirrored form of a bracket or similar, or ch itself.
int getMirror(int ch);

}  // namespace qlx
