#pragma once

#include <string>

#include "text/box/BoxImpl.h"
#include "text/box/TextBox.h"

class TTFText;

// A text box laid out once: the text is made on the canvas by layout(), which
// also fills in automatic margins and a size that was not given.
class TextBoxImpl : public virtual TextBox, public BoxImpl {
public:
    // Sides as getAdjustedMargin numbers them.
    enum Side { kTopSide = 0, kRightSide = 1, kBottomSide = 2, kLeftSide = 3 };

    explicit TextBoxImpl(BoxContainer *container);
    ~TextBoxImpl() override;

    void setText(const char *text) override;
    void setAlignment(int alignment) override;
    void setFontStyle(const char *font, int fontIndex) override;
    void setFontSize(double fontHeight, double fontWidth) override;
    void setFontAngle(double angle, bool vertical) override;
    void setFontColor(int color) override;
    void setMargin(int margin) override;
    void setMargin2(int leftMargin, int rightMargin, int topMargin, int bottomMargin) override;
    void setWidth(int width) override;
    void setHeight(int height) override;
    void setMaxWidth(int width) override;
    void setTruncate(int maxWidth, int maxLines) override;

    // Makes the text; does nothing once it exists or when there is no text.
    void layout(DrawArea *d) override;
    using BoxImpl::paint;
    void paint(DrawArea *d, int offsetX, int offsetY) override;
    std::vector<int> getPreciseCoor(int offsetX, int offsetY) override;
    // The margin used for a side: a margin of 0 or more as it is, a negative
    // one worked out from the font and the border.
    virtual int getAdjustedMargin(int margin, int side);

    // Takes the text and its style from another box.
    void copyText(const TextBoxImpl &from);
    // The position is an anchor: layout shifts a box of given size by the
    // alignment too.
    void setAnchored(bool anchored) { this->anchored = anchored; }
    // Forgets the laid-out text, so that the next layout makes it again.
    void resetLayout();
    bool isEmpty() const { return getText().empty(); }
    // The laid-out text, null before layout.
    TTFText *getTextObject() const { return textObject; }
    // The margins layout used, in the order left, right, top, bottom.
    int getUsedMargin(int index) const { return usedMargin[index]; }

    const std::string &getText() const { return textOf(kTextStyle)->text; }
    const std::string &getFont() const { return textOf(kFontStyle)->font; }
    int getFontIndex() const { return textOf(kFontStyle)->fontIndex; }
    double getFontHeight() const { return textOf(kFontSizeStyle)->fontHeight; }
    // The width in points; the height when none was set.
    double getFontWidth() const;
    double getFontAngle() const { return textOf(kFontAngleStyle)->fontAngle; }
    bool isVertical() const { return textOf(kFontAngleStyle)->vertical; }
    int getFontColor() const { return textOf(kFontColorStyle)->fontColor; }
    int getAlignment() const { return textOf(kAlignmentStyle)->alignment; }
    // Left, right, top, bottom as set; -1 is automatic.
    int getMarginSetting(int index) const { return textOf(kMarginStyle)->margins[index]; }
    int getMaxWidth() const { return textOf(kWrapStyle)->maxWidth; }
    int getTruncateWidth() const { return textOf(kTruncateStyle)->truncateWidth; }
    int getTruncateLines() const { return textOf(kTruncateStyle)->truncateLines; }

    static bool isRightAlignment(int a) { return a == 3 || a == 6 || a == 9; }
    static bool isCenterAlignment(int a) { return a == 2 || a == 5 || a == 8; }

protected:
    // Where the text itself is drawn for a box painted at (px, py).
    void textOrigin(int px, int py, int *tx, int *ty) const;
    // Gives a side without a given size the content's size and the margins
    // (left, right, top, bottom), and moves the box so that the content's
    // alignment point lies at the position.
    void placeByAlignment(int contentWidth, int contentHeight, const int margin[4]);

private:
    const TextBoxImpl *textOf(int style) const {
        // Text styles are only ever left to text boxes.
        return static_cast<const TextBoxImpl *>(styleOf(style));
    }
    int wrapWidth() const;

    std::string text;
    std::string font;
    int fontIndex;
    double fontHeight;
    double fontWidth;
    double fontAngle;
    bool vertical;
    int fontColor;
    int alignment;
    int maxWidth;
    int truncateWidth;
    int truncateLines;
    int margins[4];
    bool anchored;
    TTFText *textObject;
    int usedMargin[4];
};
