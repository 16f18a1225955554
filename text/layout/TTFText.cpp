#include "text/layout/TTFText.h"

#include <cmath>
#include <cstring>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/list/GlyphText.h"
#include "foundation/Unicode.h"
#include "text/font/cache/CanvasGlyphLimit.h"
#include "text/font/FontLock.h"
#include "text/layout/TTFBlocks.h"
#include "text/layout/TTFTextImpl.h"
#include "text/layout/VSMLBuilder.h"

namespace {

const int kAutoAntiAlias = 2;
const int kAntiAlias = 1;

// The mode word for the text's angle: rotated text gets plain grey glyphs.
int modeForAngle(int antialias, double angle) {
    bool square = std::fmod(std::fabs(angle), 90) == 0;
    int mode = antialias & 63;
    int rest = antialias & ~63;
    if (mode == kAutoAntiAlias && !square) mode = kAntiAlias;
    if (mode == 5 && !square) mode = 4;
    return rest | mode;
}

double sanePoints(double size) {
    if (!std::isfinite(size) || size > 4096) return 100;
    return size < 0 ? 0 : size;
}

}  // namespace

void TTFText::getGlyphRuns(int, int, int x, int y, int, GlyphText &out) const {
    const double upright[4] = {1, 0, 0, 1};
    out.reset(x, y, upright);
}

TTFText *TTFText::create(DrawArea *d, const char *text, const char *fontName, int fontIndex,
                         double fontHeight, double fontWidth, double angle, bool vertical,
                         int antialias, int maxWidth, int maxLines, int compactMode) {
    std::vector<wchar_t> wide(text ? strlen(text) + 1 : 1, 0);
    if (text) qlx::toWCS(wide.data(), text);
    return create(d, wide.data(), fontName, fontIndex, fontHeight, fontWidth, angle, vertical,
                  antialias, maxWidth, maxLines, compactMode);
}

TTFText *TTFText::create(DrawArea *d, const wchar_t *text, const char *fontName, int fontIndex,
                         double fontHeight, double fontWidth, double angle, bool vertical,
                         int antialias, int maxWidth, int maxLines, int compactMode) {
    (void)compactMode;
    if (!std::isfinite(angle)) angle = 0;
    FontState style;
    style.setFont(fontName ? fontName : "");
    style.fontIndex = fontIndex;
    style.height = sanePoints(fontHeight);
    style.width = sanePoints(fontWidth);
    BlockAttributes root;
    root.angle = BlockAttributes::normaliseAngle(angle);
    if (maxWidth > 0) root.maxWidth = maxWidth;
    if (maxLines > 0) root.truncate = maxLines;
    TTFBlocks *blocks;
    {
        FontLock lock;
        CanvasGlyphLimit keepNoLarger(d ? d->getWidth() : 0, d ? d->getHeight() : 0);
        VSMLBuilder builder(d, modeForAngle(antialias, angle), vertical);
        blocks = builder.build(text, style, root);
    }
    blocks->layout(0, maxWidth > 0 ? maxWidth : kUnlimited, maxLines > 0 ? maxLines : kUnlimited);
    return blocks;
}
