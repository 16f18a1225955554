#include "text/unicode/Bidi.h"

#include <algorithm>

#include "text/unicode/BidiTables.h"

namespace qlx {

int getBidiType(int ch) {
    if (ch < 0 || ch > 0xFFFF) return Bidi::kL;
    int lo = 0, hi = kBidiRangeCount - 1;
    while (lo <= hi) {
        int mid = (lo + hi) / 2;
        if (ch < kBidiRanges[mid].first)
            hi = mid - 1;
        else if (ch > kBidiRanges[mid].last)
            lo = mid + 1;
        else
            return kBidiRanges[mid].type;
    }
    return Bidi::kL;
}

int getMirror(int ch) {
    const MirrorPair *end = kMirrorPairs + kMirrorPairCount;
    const MirrorPair *p = std::lower_bound(kMirrorPairs, end, ch,
                                           [](const MirrorPair &m, int c) { return m.ch < c; });
    return p != end && p->ch == ch ? p->mirror : ch;
}

}  // namespace qlx

namespace {

bool isStrongRtl(int t) {
    return t == Bidi::kR || t == Bidi::kAL;
}

bool isNeutral(int t) {
    return t == Bidi::kB || t == Bidi::kS || t == Bidi::kWS || t == Bidi::kON || t == Bidi::kBN ||
           t >= Bidi::kLRE;
}

// Numbers count as right to left next to neutrals.
int strongOf(int t) {
    return t == Bidi::kL ? Bidi::kL : Bidi::kR;
}

}  // namespace

int Bidi::paragraphLevel(const int *chars, int n, int direction) {
    std::vector<int> types(n > 0 ? n : 0);
    for (int i = 0; i < n; ++i) types[i] = qlx::getBidiType(chars[i]);
    return paragraphLevelOfTypes(types, direction);
}

int Bidi::paragraphLevelOfTypes(const std::vector<int> &types, int direction) {
    if (direction > 0) return 1;
    if (direction == 0) return 0;
    for (int t : types) {
        if (t == kL) return 0;
        if (isStrongRtl(t)) return 1;
    }
    return 0;
}

void Bidi::resolveWeakTypes(std::vector<int> *types, int sor) {
    std::vector<int> &t = *types;
    int n = (int)t.size();
    // Marks take the type before them.
    for (int i = 0; i < n; ++i)
        if (t[i] == kNSM) t[i] = i == 0 ? sor : t[i - 1];
    // European digits after Arabic letters are Arabic numbers; then AL is R.
    int lastStrong = sor;
    for (int i = 0; i < n; ++i) {
        if (t[i] == kL || t[i] == kR || t[i] == kAL) lastStrong = t[i];
        if (t[i] == kEN && lastStrong == kAL) t[i] = kAN;
    }
    for (int &x : t)
        if (x == kAL) x = kR;
    // One separator between two numbers of a kind joins them.
    for (int i = 1; i + 1 < n; ++i) {
        if (t[i] == kES && t[i - 1] == kEN && t[i + 1] == kEN) t[i] = kEN;
        if (t[i] == kCS && t[i - 1] == t[i + 1] && (t[i - 1] == kEN || t[i - 1] == kAN))
            t[i] = t[i - 1];
    }
    // Terminators next to European numbers belong to them.
    for (int i = 0; i < n;) {
        if (t[i] != kET) {
            ++i;
            continue;
        }
        int j = i;
        while (j < n && t[j] == kET) ++j;
        bool touches = (i > 0 && t[i - 1] == kEN) || (j < n && t[j] == kEN);
        for (int k = i; k < j; ++k) t[k] = touches ? kEN : kON;
        i = j;
    }
    for (int &x : t)
        if (x == kES || x == kET || x == kCS) x = kON;
    lastStrong = sor;
    for (int i = 0; i < n; ++i) {
        if (t[i] == kL || t[i] == kR) lastStrong = t[i];
        if (t[i] == kEN && lastStrong == kL) t[i] = kL;
    }
}

void Bidi::resolveNeutralTypes(std::vector<int> *types, int sor, int eor) {
    std::vector<int> &t = *types;
    int n = (int)t.size();
    for (int i = 0; i < n;) {
        if (!isNeutral(t[i])) {
            ++i;
            continue;
        }
        int j = i;
        while (j < n && isNeutral(t[j])) ++j;
        int before = i > 0 ? strongOf(t[i - 1]) : sor;
        int after = j < n ? strongOf(t[j]) : eor;
        int resolved = before == after ? before : (sor == kR && eor == kR ? kR : -1);
        for (int k = i; k < j; ++k) t[k] = resolved;
        i = j;
    }
}

std::vector<int> Bidi::resolveLevels(const int *chars, int n, int direction) {
    std::vector<int> types(n > 0 ? n : 0);
    for (int i = 0; i < n; ++i) types[i] = qlx::getBidiType(chars[i]);
    return resolveTypeLevels(types, direction);
}

std::vector<int> Bidi::resolveTypeLevels(std::vector<int> types, int direction) {
    int n = (int)types.size();
    int base = paragraphLevelOfTypes(types, direction);
    int sor = base ? kR : kL;
    std::vector<int> original = types;
    resolveWeakTypes(&types, sor);
    resolveNeutralTypes(&types, sor, sor);
    std::vector<int> levels(n, base);
    for (int i = 0; i < n; ++i) {
        int t = types[i] < 0 ? sor : types[i];
        if (base == 0) {
            if (t == kR) levels[i] = 1;
            if (t == kAN || t == kEN) levels[i] = 2;
        } else if (t == kL || t == kEN || t == kAN) {
            levels[i] = 2;
        }
    }
    // Blanks at the end of the line go back to the paragraph level.
    for (int i = n - 1; i >= 0; --i) {
        int t = original[i];
        if (t != kWS && t != kS && t != kB && t != kBN) break;
        levels[i] = base;
    }
    return levels;
}

std::vector<int> Bidi::visualOrder(const std::vector<int> &levels) {
    int n = (int)levels.size();
    std::vector<int> order(n);
    for (int i = 0; i < n; ++i) order[i] = i;
    if (n == 0) return order;
    int highest = *std::max_element(levels.begin(), levels.end());
    int lowestOdd = 1000;
    for (int l : levels)
        if (l & 1) lowestOdd = std::min(lowestOdd, l);
    for (int level = highest; level >= lowestOdd && level > 0; --level) {
        for (int i = 0; i < n;) {
            if (levels[order[i]] < level) {
                ++i;
                continue;
            }
            int j = i;
            while (j < n && levels[order[j]] >= level) ++j;
            std::reverse(order.begin() + i, order.begin() + j);
            i = j;
        }
    }
    return order;
}
