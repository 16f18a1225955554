#pragma once

#include <string>

class BoxContainer;
class DrawArea;
class TextBoxImpl;
class TextBoxImpl2;
struct SectorLook;

// The label of a sector: a box made from the chart's label prototype, placed
// with its text's alignment point at a point beside the pie, and the join
// line that leads to it from the rim.
class SectorLabel {
public:
    SectorLabel(BoxContainer *chart, TextBoxImpl *prototype);
    ~SectorLabel();
    SectorLabel(const SectorLabel &) = delete;
    SectorLabel &operator=(const SectorLabel &) = delete;

    TextBoxImpl2 *getBox() const { return box; }

    // Lays the box out with the alignment point of its text at (x, y).  An
    // empty text, a single blank or an invisible font colour show no label.
    // The background, unless set on the box or the prototype, is defaultBackground.
    void layout(DrawArea *d, const std::string &text, int x, int y, int alignment,
                int defaultBackground);
    // The join line starts at (x, y) on the rim; labels without one stand inside.
    void setRimAnchor(int x, int y);
    // A side label's join line bends first at the elbow, gap beyond the rim.
    void setElbow(int x, int y, int gap, bool leftColumn);
    // Moves a laid-out label down by dy (up when negative).
    void moveBy(int dy);

    bool isShown() const { return shown; }
    bool hasJoinLine() const { return shown && joined; }
    int getTopY() const;
    int getHeight() const;
    int getShift() const { return shift; }
    int getAnchorX() const { return anchorX; }
    int getAnchorY() const { return anchorY + shift; }

    // With kSameAsMainColor standing for the sector's colour.
    void paintJoinLine(DrawArea *d, const SectorLook &look) const;
    // Paints the box with kSameAsMainColor standing for mainColor.
    void paint(DrawArea *d, int mainColor) const;
    // The box's image-map shape, "" when no label shows.
    const char *getImageCoor(int offsetX, int offsetY) const;

private:
    TextBoxImpl2 *box;
    bool shown;
    bool joined;
    bool side;
    bool leftColumn;
    int anchorX;
    int anchorY;
    int rimX;
    int rimY;
    int elbowX;
    int elbowY;
    int gap;
    int shift;
};
