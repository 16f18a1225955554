#include "chart/legend/LegendItem.h"

#include <algorithm>

#include "chart/legend/LegendIcon.h"
#include "chart/legend/LegendText.h"
#include "chart/symbol/DataSymbol.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "text/layout/TTFText.h"

namespace {

// Below this a wrap width is no limit.
const int kNoLimit = 0x3FFFFFFF;

}  // namespace

LegendItem::LegendItem(int order, LegendText *text, int color, int lineWidth, DataSymbol *symbol,
                       DrawArea *icon, bool keyless)
    : x(0),
      y(0),
      width(0),
      height(0),
      order(order),
      text(text),
      color(color),
      lineWidth(lineWidth),
      symbol(symbol),
      icon(icon),
      painter(nullptr),
      keyless(keyless),
      textObject(nullptr) {
    if (!icon) return;
    icon->retain();
    this->symbol = new DataSymbol();
    this->symbol->setCustom(icon);
}

LegendItem::LegendItem(int order, LegendText *text, LegendIcon *painter)
    : LegendItem(order, text, kTransparent, -1, nullptr, nullptr, false) {
    this->painter = painter;
}

LegendItem::~LegendItem() {
    delete painter;
    if (textObject) textObject->destroy();
    if (icon) {
        delete symbol;
        icon->destroy();
    }
    delete text;
}

bool LegendItem::isLineKey(const LegendKeyStyle &style) const {
    return style.lineStyleKey && lineWidth > 0 && color != kTransparent;
}

bool LegendItem::hasKey(const LegendKeyStyle &style) const {
    return !keyless && style.keyWidth > 0 && style.keyHeight > 0;
}

std::string LegendItem::getText(const char *templateText, int flags) const {
    return text ? text->getText(templateText, flags) : "";
}

int LegendItem::firstLineHeight() const {
    if (!textObject) return 0;
    int line = textObject->getLineHeight();
    return line > 0 ? std::min(line, textObject->getHeight()) : textObject->getHeight();
}

void LegendItem::layout(DrawArea *d, const LegendKeyStyle &style, int maxWidth) {
    if (textObject) textObject->destroy();
    bool key = hasKey(style);
    int keyPart = key ? style.keyWidth + style.keyGap : 0;
    int wrap = maxWidth >= kNoLimit ? 0 : std::max(maxWidth - keyPart, 1);
    // A plain text item shows its own words, not the key template.
    std::string words = getText(keyless ? "{dataSetName}" : style.templateText, 0);
    textObject = TTFText::create(d, words.c_str(), style.font, style.fontIndex, style.fontHeight,
                                 style.fontWidth, 0, false, d->getTextAAMode(), wrap, 0, 0);
    int textWidth = textObject ? textObject->getWidth() : 0;
    int textHeight = textObject ? textObject->getHeight() : 0;
    int line = firstLineHeight();
    width = keyPart + textWidth;
    // The key stands by the first line; a taller key pushes the text down.
    height = key ? std::max(style.keyHeight, line) - line + textHeight : textHeight;
}

void LegendItem::paint(DrawArea *d, const LegendKeyStyle &style, int left, int top) {
    int px = left + x, py = top + y;
    int line = firstLineHeight();
    int textLeft = px;
    if (hasKey(style)) {
        int row = std::max(style.keyHeight, line);
        drawIcon(d, style, px, py + (row - style.keyHeight) / 2);
        textLeft += style.keyWidth + style.keyGap;
        py += (row - line) / 2;
    }
    if (textObject) textObject->draw(textLeft, py, style.fontColor, kTopLeft);
}

void LegendItem::drawIcon(DrawArea *d, const LegendKeyStyle &style, int left, int top) {
    int w = style.keyWidth, h = style.keyHeight;
    if (painter) {
        painter->paint(d, left, top, w, h, style.keyEdgeColor, style.keyRaisedEffect);
        return;
    }
    int cx = left + (w - 1) / 2, cy = top + (h - 1) / 2;
    bool showSymbol = symbol && symbol->isVisible();
    if (isLineKey(style)) {
        d->line(left, cy, left + w - 1, cy, color, lineWidth);
    } else if (!showSymbol) {
        d->rect(left, top, left + w - 1, top + h - 1, style.keyEdgeColor, color,
                style.keyRaisedEffect);
        return;
    }
    if (showSymbol) symbol->paint(d, cx, cy, symbol->getWidth(), symbol->getHeight());
}
