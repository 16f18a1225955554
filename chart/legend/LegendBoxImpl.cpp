#include "chart/legend/LegendBoxImpl.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "chart/legend/LegendIcon.h"
#include "chart/legend/UserLegendText.h"
#include "chart/symbol/DataSymbol.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

const int kNoLimit = 0x3FFFFFFF;
const int kMaxCols = 1000;

// A pixel position from a sum or product that may leave the int range.
int toPixel(double v) {
    return (int)std::max(std::min(v, (double)BoxImpl::kMaxCoordinate),
                         -(double)BoxImpl::kMaxCoordinate);
}
const char *const kDefaultTemplate = "{dataSetName}";
const char *const kDefaultQuery = "dataSet={dataSet}&dataSetName={dataSetName}";
enum { kLeftMargin, kRightMargin, kTopMargin, kBottomMargin };

}  // namespace

LegendBoxImpl::LegendBoxImpl(BoxContainer *chart)
    : TextBoxImpl(chart),
      gridMode(false),
      reverse(false),
      lineStyleKey(false),
      keyWidth(-1),
      keyHeight(-1),
      keyGap(-1),
      keySpacing(-1),
      lineSpacing(-1),
      cols(0),
      keyEdgeColor(-1),
      keyRaisedEffect(0),
      itemsSorted(false),
      laidOut(false),
      keyStyle(),
      spacing(0),
      rowSpacing(0),
      margin{0, 0, 0, 0},
      contentLeft(0),
      contentTop(0),
      rowCount(0) {
    setPos(kNoPosition, kNoPosition);
    // The position names the legend's top-left corner.
    setAlignment(kTopLeft);
}

LegendBoxImpl::~LegendBoxImpl() {
    for (LegendItem *item : items) delete item;
    for (LegendItem *item : frontItems) delete item;
}

void LegendBoxImpl::addKey(const char *text, int color, int lineWidth, DrawArea *icon) {
    addKey2(-1, text, color, lineWidth, icon);
}

void LegendBoxImpl::addKey2(int pos, const char *text, int color, int lineWidth, DrawArea *icon) {
    bool front = pos >= 0;
    LegendItem *item = new LegendItem(front ? pos : kUserKeyOrder, new UserLegendText(text), color,
                                      lineWidth, nullptr, icon, false);
    (front ? frontItems : items).push_back(item);
}

void LegendBoxImpl::addText(const char *text) {
    addText2(-1, text);
}

void LegendBoxImpl::addText2(int pos, const char *text) {
    bool front = pos >= 0;
    LegendItem *item = new LegendItem(front ? pos : kUserKeyOrder, new UserLegendText(text),
                                      kTransparent, 0, nullptr, nullptr, true);
    (front ? frontItems : items).push_back(item);
}

void LegendBoxImpl::addLegendItem(int order, LegendText *text, int color, int lineWidth,
                                  DataSymbol *symbol) {
    items.push_back(new LegendItem(order, text, color, lineWidth, symbol, nullptr, false));
}

void LegendBoxImpl::addLegendItem(int order, LegendText *text, LegendIcon *painter) {
    items.push_back(new LegendItem(order, text, painter));
}

void LegendBoxImpl::setCols(int n) {
    cols = std::max(std::min(n, kMaxCols), -kMaxCols);
    gridMode = n != 0;
}

void LegendBoxImpl::setReverse(bool b) {
    reverse = b;
}

void LegendBoxImpl::setLineStyleKey(bool b) {
    lineStyleKey = b;
}

void LegendBoxImpl::setKeySize(int w, int h, int gap) {
    keyWidth = limit(w);
    keyHeight = limit(h);
    keyGap = limit(gap);
}

void LegendBoxImpl::setKeySpacing(int keys, int lines) {
    keySpacing = limit(keys);
    lineSpacing = limit(lines);
}

void LegendBoxImpl::setKeyBorder(int edge, int raised) {
    keyEdgeColor = edge;
    keyRaisedEffect = raised;
}

int LegendBoxImpl::getAdjustedMargin(int m, int side) {
    if (m >= 0) return m;
    return side == kTopSide || side == kBottomSide ? (int)getFontHeight() : (int)getFontWidth();
}

void LegendBoxImpl::sortItems() {
    if (itemsSorted) return;
    itemsSorted = true;
    std::stable_sort(items.begin(), items.end(), LegendItem::byOrder);
    // Keys given a position go to that place in the list.
    std::stable_sort(frontItems.begin(), frontItems.end(), LegendItem::byOrder);
    for (LegendItem *item : frontItems) {
        size_t at = std::min((size_t)item->getOrder(), items.size());
        items.insert(items.begin() + at, item);
    }
    frontItems.clear();
    if (reverse) std::reverse(items.begin(), items.end());
}

void LegendBoxImpl::settleKeyStyle() {
    int fw = (int)getFontWidth(), fh = (int)getFontHeight();
    int autoWidth = fw, autoHeight = fh;
    bool anyLine = false;
    LegendKeyStyle probe = {};
    probe.lineStyleKey = lineStyleKey;
    for (LegendItem *item : items) {
        bool line = item->isLineKey(probe);
        anyLine = anyLine || line;
        if (LegendIcon *icon = item->getPainter()) {
            autoWidth = std::max(autoWidth, icon->getWidth());
            autoHeight = std::max(autoHeight, icon->getHeight());
            continue;
        }
        DataSymbol *s = item->getSymbol();
        if (!s || !s->isVisible()) continue;
        autoWidth = std::max(autoWidth, s->getWidth() * (line ? 2 : 1));
        autoHeight = std::max(autoHeight, s->getHeight());
    }
    if (anyLine) autoWidth = std::max(autoWidth, 2 * fw);
    keyStyle.keyWidth = keyWidth >= 0 ? keyWidth : autoWidth;
    keyStyle.keyHeight = keyHeight >= 0 ? keyHeight : autoHeight;
    keyStyle.keyGap = keyGap >= 0 ? keyGap : (int)(fw * 0.5);
    keyStyle.lineStyleKey = lineStyleKey;
    keyStyle.keyEdgeColor = keyEdgeColor == -1 ? kTransparent : keyEdgeColor;
    keyStyle.keyRaisedEffect = keyRaisedEffect;
    keyStyle.font = getFont().c_str();
    keyStyle.fontIndex = getFontIndex();
    keyStyle.fontHeight = getFontHeight();
    keyStyle.fontWidth = getFontWidth();
    keyStyle.fontColor = getFontColor();
    keyStyle.templateText = templateText.c_str();
    spacing = keySpacing >= 0 ? keySpacing : fw * (gridMode ? 2 : 3);
    rowSpacing = lineSpacing >= 0 ? lineSpacing : (int)(fh * 0.2);
    for (int side = 0; side < 4; ++side) {
        static const int kMarginOfSide[4] = {kTopMargin, kRightMargin, kBottomMargin, kLeftMargin};
        int index = kMarginOfSide[side];
        margin[index] = getAdjustedMargin(getMarginSetting(index), side);
    }
}

int LegendBoxImpl::roomOnCanvas(DrawArea *d) const {
    int a = getAlignment(), w = d->getWidth();
    if (isRightAlignment(a)) return x;
    if (isCenterAlignment(a)) return 2 * std::min(x, w - x);
    return w - x;
}

int LegendBoxImpl::textLimit(DrawArea *d) const {
    int sides = margin[kLeftMargin] + margin[kRightMargin];
    if (cols < 2) return widthGiven ? width - sides : kNoLimit;
    int room = (widthGiven ? width : roomOnCanvas(d)) - sides;
    if (gridMode) room = toPixel((room + (1.0 - cols) * spacing) / cols);
    return room;
}

void LegendBoxImpl::layout(DrawArea *d) {
    if (laidOut || !d) return;
    sortItems();
    templateText = getText().empty() ? kDefaultTemplate : getText();
    if (!isStyleSet(kBackgroundStyle))
        setBackground(getBgColor(), gridMode ? kLineColor : kTransparent, getRaisedEffect());
    settleKeyStyle();
    // Without a place the legend is its chart's to place; it is laid out then.
    if (x < kPositionUnset || y < kPositionUnset) return;
    laidOut = true;
    int limit = textLimit(d);
    for (LegendItem *item : items) item->layout(d, keyStyle, limit);
    int rowWidth =
        (widthGiven ? width : roomOnCanvas(d)) - margin[kLeftMargin] - margin[kRightMargin];
    int usedWidth = 0, usedHeight = 0;
    if (gridMode)
        gridItems(rowWidth, &usedWidth, &usedHeight);
    else
        flowItems(rowWidth, &usedWidth, &usedHeight);
    placeBox(usedWidth, usedHeight);
}

void LegendBoxImpl::flowItems(int rowWidth, int *usedWidth, int *usedHeight) {
    double px = 0, py = 0, widest = 0;
    int rowHeight = 0;
    rowCount = items.empty() ? 0 : 1;
    for (size_t i = 0; i < items.size(); ++i) {
        LegendItem *item = items[i];
        if (i > 0) {
            if (px + spacing + item->width > rowWidth) {
                py += rowHeight + rowSpacing;
                px = rowHeight = 0;
                ++rowCount;
            } else {
                px += spacing;
            }
        }
        item->x = toPixel(px);
        item->y = toPixel(py);
        px += item->width;
        rowHeight = std::max(rowHeight, item->height);
        widest = std::max(widest, px);
    }
    *usedWidth = toPixel(widest);
    *usedHeight = items.empty() ? 0 : toPixel(py + rowHeight);
}

void LegendBoxImpl::gridItems(int rowWidth, int *usedWidth, int *usedHeight) {
    int widest = 0;
    for (LegendItem *item : items) widest = std::max(widest, item->width);
    int n = cols > 0 ? cols
                     : std::min(std::max((rowWidth + spacing) / std::max(widest + spacing, 1), 1),
                                kMaxCols);
    int columnWidth = widest;
    if (widthGiven) {
        double room = width - margin[kLeftMargin] - margin[kRightMargin] + (1.0 - n) * spacing;
        columnWidth = std::max(toPixel(room / n), 1);
    }
    double rowTop = 0, step = (double)columnWidth + spacing;
    int rowHeight = 0;
    rowCount = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        int column = (int)(i % n);
        if (column == 0 && i > 0) {
            rowTop += rowHeight + rowSpacing;
            rowHeight = 0;
        }
        if (column == 0) ++rowCount;
        items[i]->x = toPixel(std::floor(column * step + 0.5));
        items[i]->y = toPixel(rowTop);
        rowHeight = std::max(rowHeight, items[i]->height);
    }
    int used = (int)std::min(items.size(), (size_t)n);
    *usedWidth = items.empty() ? 0 : toPixel(std::floor(used * step - spacing + 0.5));
    *usedHeight = items.empty() ? 0 : toPixel(rowTop + rowHeight);
}

void LegendBoxImpl::placeBox(int usedWidth, int usedHeight) {
    // Keys in a box of given size stand at the alignment of the room they leave.
    int a = getAlignment();
    int shiftX =
        !widthGiven
            ? 0
            : DrawArea::alignX(width - margin[kLeftMargin] - margin[kRightMargin] - usedWidth, a);
    int shiftY =
        !heightGiven
            ? 0
            : DrawArea::alignY(height - margin[kTopMargin] - margin[kBottomMargin] - usedHeight, a);
    placeByAlignment(usedWidth, usedHeight, margin);
    contentLeft = margin[kLeftMargin] + shiftX;
    contentTop = margin[kTopMargin] + shiftY;
}

void LegendBoxImpl::paint(DrawArea *d, int offsetX, int offsetY) {
    if (!d) return;
    layout(d);
    if (!laidOut) return;
    int px = x + offsetX, py = y + offsetY;
    paintBox(d, px, py);
    for (LegendItem *item : items) item->paint(d, keyStyle, px + contentLeft, py + contentTop);
}

const char *LegendBoxImpl::getImageCoor2(int dataItem, int offsetX, int offsetY) {
    scratch.clear();
    if (!laidOut || dataItem < 0 || dataItem >= (int)items.size()) return scratch.c_str();
    const LegendItem *item = items[dataItem];
    int left = x + contentLeft + item->x + offsetX, top = y + contentTop + item->y + offsetY;
    char buffer[128];
    snprintf(buffer, sizeof(buffer), "shape=\"rect\" coords=\"%d,%d,%d,%d\"", left, top,
             left + item->width - 1, top + item->height - 1);
    scratch = buffer;
    return scratch.c_str();
}

const char *LegendBoxImpl::getHTMLImageMap(const char *url, const char *queryFormat,
                                           const char *extraAttr, int offsetX, int offsetY) {
    std::string map;
    std::string query = combineQuery(queryFormat, kDefaultQuery);
    for (int i = 0; laidOut && i < (int)items.size(); ++i) {
        std::string area = "<area ";
        area += getImageCoor2(i, offsetX, offsetY);
        std::string href = items[i]->getText(query.c_str(), VSParser::kEscapeURL);
        area += " href=\"" + urlJoin(url, href.c_str()) + "\"";
        std::string extra = items[i]->getText(extraAttr ? extraAttr : "", VSParser::kEscapeHTML);
        if (!extra.empty()) area += " " + extra;
        map += area + ">\n";
    }
    scratch = map;
    return scratch.c_str();
}
