#pragma once

#include <string>

class DataSymbol;
class DrawArea;
class LegendIcon;
class LegendText;
class TTFText;

// How the keys of one legend look, settled by the legend's layout.
struct LegendKeyStyle {
    int keyWidth;
    int keyHeight;
    int keyGap;
    bool lineStyleKey;
    int keyEdgeColor;
    int keyRaisedEffect;
    const char *font;
    int fontIndex;
    double fontHeight;
    double fontWidth;
    int fontColor;
    // The key texts' template.
    const char *templateText;
};

// One key of a legend: an icon and a text, placed by the legend.
class LegendItem {
public:
    // Takes text; borrows symbol.  An icon, kept with a reference of its own,
    // stands in for the symbol.  A keyless item shows its text only.
    LegendItem(int order, LegendText *text, int color, int lineWidth, DataSymbol *symbol,
               DrawArea *icon, bool keyless);
    // A key that draws itself; takes text and painter.
    LegendItem(int order, LegendText *text, LegendIcon *painter);
    ~LegendItem();
    LegendItem(const LegendItem &) = delete;
    LegendItem &operator=(const LegendItem &) = delete;

    static bool byOrder(const LegendItem *a, const LegendItem *b) { return a->order < b->order; }

    int getOrder() const { return order; }
    DataSymbol *getSymbol() const { return symbol; }
    LegendIcon *getPainter() const { return painter; }
    bool isLineKey(const LegendKeyStyle &style) const;
    // Whether this item shows a key in a legend of the given key size.
    bool hasKey(const LegendKeyStyle &style) const;
    // The key text from the template, escaped by the template flags.
    std::string getText(const char *templateText, int flags) const;

    // Makes the text, wrapped at maxWidth less the key, and measures the item.
    void layout(DrawArea *d, const LegendKeyStyle &style, int maxWidth);
    void paint(DrawArea *d, const LegendKeyStyle &style, int left, int top);

    // Place in the legend's content box, and size, after layout.
    int x;
    int y;
    int width;
    int height;

private:
    void drawIcon(DrawArea *d, const LegendKeyStyle &style, int left, int top);
    int firstLineHeight() const;

    int order;
    LegendText *text;
    int color;
    int lineWidth;
    DataSymbol *symbol;
    DrawArea *icon;
    LegendIcon *painter;
    bool keyless;
    TTFText *textObject;
};
