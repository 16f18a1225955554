#pragma once

#include <string>
#include <vector>

#include "text/box/Box.h"

class BoxContainer;
class DrawArea;

// The state of a box and the drawing of its background.  Each style setting
// remembers that it was set, so that a box made as a copy of a prototype can
// leave the settings it did not set to the prototype (see styleOf).
class BoxImpl : public virtual Box {
public:
    // Groups of settings that a box may leave to another.
    enum Style {
        kBackgroundStyle = 1 << 0,
        kCornerStyle = 1 << 1,
        kTextStyle = 1 << 2,
        kFontStyle = 1 << 3,
        kFontSizeStyle = 1 << 4,
        kFontAngleStyle = 1 << 5,
        kFontColorStyle = 1 << 6,
        kAlignmentStyle = 1 << 7,
        kMarginStyle = 1 << 8,
        kWrapStyle = 1 << 9,
        kTruncateStyle = 1 << 10,
    };

    // Positions, sizes and margins are kept within this many pixels, so that
    // sums of them stay within an int.
    static constexpr int kMaxCoordinate = 1 << 28;
    static int limit(int v) {
        return v < -kMaxCoordinate ? -kMaxCoordinate : v > kMaxCoordinate ? kMaxCoordinate : v;
    }

    explicit BoxImpl(BoxContainer *container);
    BoxImpl(const BoxImpl &) = delete;
    BoxImpl &operator=(const BoxImpl &) = delete;

    void release() override { delete this; }
    void paint(DrawArea *d) override { paint(d, 0, 0); }

    void setPos(int x, int y) override;
    void setSize(int width, int height) override;
    void setBackground(int color, int edgeColor, int raisedEffect) override;
    void setRoundedCorners(int r1, int r2, int r3, int r4) override;
    const char *getImageCoor(int offsetX, int offsetY) override;
    int getWidth() const override { return width; }
    int getHeight() const override { return height; }
    int getLeftX() const override { return x; }
    int getTopY() const override { return y; }

    // A plain box has nothing to lay out.
    virtual void layout(DrawArea *) {}
    virtual void paint(DrawArea *d, int offsetX, int offsetY);
    // The background in this box's size with its top-left corner at (x, y).
    virtual void paintBox(DrawArea *d, int x, int y);
    // The corners for an image map, offsets added: left, top, right, bottom
    // (last pixels) for an upright box, four points for a rotated one.
    virtual std::vector<int> getPreciseCoor(int offsetX, int offsetY);

    // Takes the position, size, background and corners of another box.
    void copyBox(const BoxImpl &from);
    void initBox(BoxContainer *chart) { container = chart; }
    BoxContainer *getContainer() const { return container; }

    // The box whose setting of the given style applies to this one.
    virtual const BoxImpl *styleOf(int) const { return this; }
    bool isStyleSet(int style) const { return (styleSet & style) != 0; }

    int getBgColor() const { return styleOf(kBackgroundStyle)->bgColor; }
    int getEdgeColor() const { return styleOf(kBackgroundStyle)->edgeColor; }
    int getRaisedEffect() const { return styleOf(kBackgroundStyle)->raisedEffect; }
    bool isWidthGiven() const { return widthGiven; }
    bool isHeightGiven() const { return heightGiven; }

protected:
    void markSet(int style) { styleSet |= style; }
    void copyStyles(const BoxImpl &from, int styles) { styleSet |= from.styleSet & styles; }
    // The radii a background at (px, py) is drawn with: a corner left negative
    // follows the chart's rounded frame where it touches that corner, else 0.
    void effectiveRadii(int px, int py, int radius[4]) const;

    int x;
    int y;
    int width;
    int height;
    bool widthGiven;
    bool heightGiven;

private:
    BoxContainer *container;
    int bgColor;
    int edgeColor;
    int raisedEffect;
    int cornerRadius[4];
    int styleSet;
    std::string imageCoor;
};
