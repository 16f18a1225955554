#include "text/unicode/ArabicShaping.h"

#include <algorithm>
#include <string>

#include "text/unicode/BidiTables.h"

namespace {

const int kLam = 0x644;

char joiningType(int ch) {
    if (ch == 0x200D) return 'C';  // zero width joiner
    const JoiningRange *end = kJoiningRanges + kJoiningRangeCount;
    const JoiningRange *r = std::upper_bound(
        kJoiningRanges, end, ch, [](int c, const JoiningRange &j) { return c < j.first; });
    if (r == kJoiningRanges) return 'U';
    --r;
    return ch <= r->last ? r->type : 'U';
}

const ArabicForms *formsOf(int ch) {
    const ArabicForms *end = kArabicForms + kArabicFormCount;
    const ArabicForms *f = std::lower_bound(kArabicForms, end, ch,
                                            [](const ArabicForms &a, int c) { return a.ch < c; });
    return f != end && f->ch == ch ? f : nullptr;
}

const LamAlef *lamAlefOf(int alef) {
    for (int i = 0; i < kLamAlefCount; ++i)
        if (kLamAlefs[i].alef == alef) return &kLamAlefs[i];
    return nullptr;
}

bool joinsForward(char t) {
    return t == 'D' || t == 'L' || t == 'C';
}
bool joinsBackward(char t) {
    return t == 'D' || t == 'R' || t == 'C';
}

// Nearest letter in the direction step that isn't a transparent mark.
int neighbour(const std::wstring &text, int i, int step, int start, int end) {
    for (i += step; i >= start && i < end; i += step)
        if (text[i - start] != 0 && joiningType(text[i - start]) != 'T') return i;
    return -1;
}

}  // namespace

namespace qlx {

int arabicShape(wchar_t *text, int start, int length) {
    if (!text || length <= 0) return 0;
    int end = start + length;
    // Types from the unshaped letters: shaping one must not change its neighbour.
    std::wstring source(text + start, text + end);
    auto typeAt = [&](int i) { return i < 0 ? 'U' : joiningType(source[i - start]); };
    int ligatures = 0;
    for (int i = start; i < end; ++i) {
        int ch = source[i - start];
        char type = joiningType(ch);
        if (type != 'D' && type != 'R') continue;
        int prev = neighbour(source, i, -1, start, end);
        int next = neighbour(source, i, 1, start, end);
        bool joinPrev = prev >= 0 && joinsForward(typeAt(prev));
        bool joinNext = next >= 0 && type == 'D' && joinsBackward(typeAt(next));
        if (ch == kLam && next >= 0 && text[next] != 0) {
            if (const LamAlef *la = lamAlefOf(source[next - start])) {
                text[i] = joinPrev ? la->final : la->isolated;
                text[next] = 0;
                ++ligatures;
                // The alef is consumed; skip it and anything between.
                i = next;
                continue;
            }
        }
        const ArabicForms *f = formsOf(ch);
        if (!f) continue;
        int form = joinPrev && joinNext ? f->medial
                   : joinPrev           ? f->final
                   : joinNext           ? f->initial
                                        : f->isolated;
        if (form == 0) form = joinPrev ? f->final : f->isolated;
        if (form != 0) text[i] = (wchar_t)form;
    }
    return ligatures;
}

}  // namespace qlx
