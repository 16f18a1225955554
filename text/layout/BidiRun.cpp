#include "text/layout/BidiRun.h"

#include <vector>

#include "text/layout/Glyph.h"
#include "text/layout/GlyphContainer.h"
#include "text/unicode/ArabicShaping.h"
#include "text/unicode/Bidi.h"

void BidiRun::apply(GlyphContainer *glyphs, int direction) {
    int n = glyphs->size();
    std::vector<int> chars(n);
    for (int i = 0; i < n; ++i) chars[i] = glyphs->at(i).ch;
    std::vector<int> levels = Bidi::resolveLevels(chars.data(), n, direction);

    // Shape each right-to-left stretch in logical order.
    std::vector<wchar_t> shaped(chars.begin(), chars.end());
    for (int i = 0; i < n;) {
        if (!(levels[i] & 1)) {
            ++i;
            continue;
        }
        int j = i;
        while (j < n && (levels[j] & 1)) ++j;
        qlx::arabicShape(shaped.data(), i, j - i);
        i = j;
    }

    std::vector<Glyph> logical;
    std::vector<int> keptLevels;
    for (int i = 0; i < n; ++i) {
        if (shaped[i] == 0) {  // the alef inside a lam-alef
            if (!logical.empty()) logical.back().ligated = chars[i];
            continue;
        }
        Glyph g = glyphs->at(i);
        if ((int)shaped[i] != chars[i]) g.makeGlyph(shaped[i], true);
        g.rightToLeft = (levels[i] & 1) != 0;
        logical.push_back(g);
        keptLevels.push_back(levels[i]);
    }
    std::vector<int> order = Bidi::visualOrder(keptLevels);
    glyphs->erase(0, n);
    for (int index : order) {
        Glyph &g = logical[index];
        if (keptLevels[index] & 1) {
            int mirror = qlx::getMirror(g.ch);
            if (mirror != g.ch) g.makeGlyph(mirror, true);
        }
        glyphs->append(g);
    }
}
