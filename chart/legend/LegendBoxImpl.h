#pragma once

#include <string>
#include <vector>

#include "chart/legend/LegendBox.h"
#include "chart/legend/LegendItem.h"
#include "text/box/TextBoxImpl.h"

class DataSymbol;
class LegendIcon;
class LegendText;

// The legend of a chart.  Layers add their keys at layout time with
// addLegendItem; the user adds keys and texts.  Layout sorts the keys, sizes
// them and places them in rows or in a grid.
class LegendBoxImpl : public LegendBox, public TextBoxImpl {
public:
    // A coordinate below this leaves the legend's place to its chart.
    static constexpr int kPositionUnset = -0xFFFFE;
    // The coordinate a legend starts with.
    static constexpr int kNoPosition = (int)0xFF800001u;
    // The order of keys the user adds without a position: after the others.
    static constexpr int kUserKeyOrder = 0x7FFFFFFF;

    explicit LegendBoxImpl(BoxContainer *chart);
    ~LegendBoxImpl() override;

    void addKey(const char *text, int color, int lineWidth, DrawArea *icon) override;
    void addKey2(int pos, const char *text, int color, int lineWidth, DrawArea *icon) override;
    void addText(const char *text) override;
    void addText2(int pos, const char *text) override;
    void setCols(int cols) override;
    void setReverse(bool reverse) override;
    void setLineStyleKey(bool lineStyle) override;
    void setKeySize(int width, int height, int gap) override;
    void setKeySpacing(int keySpacing, int lineSpacing) override;
    void setKeyBorder(int edgeColor, int raisedEffect) override;
    const char *getImageCoor2(int dataItem, int offsetX, int offsetY) override;
    const char *getHTMLImageMap(const char *url, const char *queryFormat, const char *extraAttr,
                                int offsetX, int offsetY) override;

    // A key of a chart layer, ordered by order; takes text, borrows symbol.
    void addLegendItem(int order, LegendText *text, int color, int lineWidth, DataSymbol *symbol);
    // A key that draws itself; takes text and painter.
    void addLegendItem(int order, LegendText *text, LegendIcon *painter);
    int getItemCount() const { return (int)(items.size() + frontItems.size()); }
    bool isGridMode() const { return gridMode; }
    int getCols() const { return cols; }
    // After layout: the key size and spacings in use, and the number of rows.
    const LegendKeyStyle &getKeyStyle() const { return keyStyle; }
    int getRowCount() const { return rowCount; }

    void layout(DrawArea *d) override;
    using BoxImpl::paint;
    void paint(DrawArea *d, int offsetX, int offsetY) override;
    int getAdjustedMargin(int margin, int side) override;

private:
    void sortItems();
    void settleKeyStyle();
    int roomOnCanvas(DrawArea *d) const;
    int textLimit(DrawArea *d) const;
    void flowItems(int rowWidth, int *usedWidth, int *usedHeight);
    void gridItems(int rowWidth, int *usedWidth, int *usedHeight);
    void placeBox(int usedWidth, int usedHeight);

    std::vector<LegendItem *> items;
    std::vector<LegendItem *> frontItems;
    bool gridMode;
    bool reverse;
    bool lineStyleKey;
    int keyWidth;
    int keyHeight;
    int keyGap;
    int keySpacing;
    int lineSpacing;
    int cols;
    int keyEdgeColor;
    int keyRaisedEffect;
    bool itemsSorted;
    bool laidOut;

    // Settled by layout.
    LegendKeyStyle keyStyle;
    std::string templateText;
    int spacing;
    int rowSpacing;
    int margin[4];
    int contentLeft;
    int contentTop;
    int rowCount;
    std::string scratch;
};
