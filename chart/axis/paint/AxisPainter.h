#pragma once

#include <vector>

#include "chart/axis/paint/AxisLabelPrototype.h"
#include "chart/axis/paint/AxisTitle.h"
#include "chart/axis/paint/PaintExtent.h"
#include "chart/axis/paint/TickStyle.h"

class AxisFrame;
class AxisScaleView;
class BoxContainer;
class DrawArea;
class Mark;
class MarkImpl;
class TextBox;
class TextBoxImpl2;
struct PlotFrame;

// A band across the plot area between two values of an axis.
struct AxisZone {
    double startValue;
    double endValue;
    int color;
};

// Draws what an axis's scale decided: the line, the ticks, the labels, the
// title, and the marks and zones on the plot area.  Measuring runs the same
// code without a target canvas: the texts are laid out on the chart's canvas
// but nothing is drawn.  Owns its label style, title, marks and the boxes it
// makes.
class AxisPainter {
public:
    // The setOffset value that means "no offset set".
    static constexpr int kNoOffset = 0x7FFFFFFF;

    // container is the chart the boxes stand on; canvas lays texts out.
    AxisPainter(BoxContainer *container, DrawArea *canvas);
    ~AxisPainter();
    AxisPainter(const AxisPainter &) = delete;
    AxisPainter &operator=(const AxisPainter &) = delete;

    // Where the chart puts the axis: the low end of its line, the side
    // (kBottom, kLeft, kRight, kTop, or kCenter for an axis turned by setAngle).
    void setPosition(int x, int y);
    void setAlignment(int alignment) { this->alignment = alignment; }
    void setAngle(double angle);
    // The line and ticks are not drawn; labels and title still are.
    void setHidden(bool hidden) { isHidden = hidden; }

    // A title colour of -1 takes the label colour, a tick colour of -1 the axis colour.
    void setColors(int axisColor, int labelColor, int titleColor, int tickColor);
    void setWidth(int width) { axisWidth = width; }
    // Moves the axis from its place; addAxis uses it to stand axes apart.
    void setOffset(int x, int y);
    void setLabelGap(int gap) { labelGap = gap; }
    void setTitlePos(int alignment, int gap);
    void setLabelAlignment(int alignment, int minLabelSpace);
    TickStyle &getTickStyle() { return ticks; }
    // Values added to the ticks' and labels' values before they are placed.
    void setTickOffset(double offset);
    void setLabelOffset(double offset);
    // An empty font becomes "bold".
    TextBox *setTitle(const char *text, const char *font, double fontSize, int fontColor);
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor, double fontAngle);
    Mark *addMark(double value, int lineColor, const char *text, const char *font, double fontSize);
    void addZone(double startValue, double endValue, int color);

    // The two entries: an axis on a side of the plot, and one turned by its
    // angle.  Each returns the box of what it drew; with a null target it only
    // measures.  paint picks the entry by the alignment.
    PaintExtent paintUpright(AxisScaleView &scale, DrawArea *target);
    PaintExtent paintTurned(AxisScaleView &scale, DrawArea *target);
    PaintExtent paint(AxisScaleView &scale, DrawArea *target);
    // Pixels the axis takes outward of its place (offset included): below a
    // bottom axis, left of a left one, right of a right one, above a top one; 0
    // for a turned axis.
    int getThickness(AxisScaleView &scale);

    // The plot-area passes: zones go behind everything of the plot; marks go
    // behind the layers or above them by their setting.  The lines of the
    // marks are laid out by placeMarks.
    void paintZones(AxisScaleView &scale, DrawArea *d, const PlotFrame &plot);
    void placeMarks(AxisScaleView &scale, const PlotFrame &plot);
    void paintMarks(AxisScaleView &scale, DrawArea *d, const PlotFrame &plot, bool onTop);

    int getAlignment() const { return alignment; }
    double getAngle() const { return angle; }
    int getX() const { return x; }
    int getY() const { return y; }
    int getOffsetX() const { return offsetX; }
    int getOffsetY() const { return offsetY; }
    bool getHidden() const { return isHidden; }
    int getAxisColor() const { return axisColor; }
    int getAxisWidth() const { return axisWidth; }
    int getLabelGap() const { return labelGap; }
    int getTitleGap() const { return titleGap; }
    int getLabelAlignment() const { return labelAlignment; }
    int getMinLabelSpace() const { return minLabelSpace; }
    const TickStyle &getTickStyle() const { return ticks; }
    double getTickOffset() const { return tickOffset; }
    double getLabelOffset() const { return labelOffset; }
    AxisLabelPrototype &getLabelStyle() { return labelStyle; }
    AxisTitle &getTitle() { return title; }
    const std::vector<MarkImpl *> &getMarks() const { return marks; }
    const std::vector<AxisZone> &getZones() const { return zones; }
    BoxContainer *getContainer() const { return container; }
    DrawArea *getCanvas() const { return canvas; }

    // The boxes of the last run: the title's and the marks' labels (null where
    // none was made).
    TextBoxImpl2 *getTitleBox() const { return titleBox; }
    TextBoxImpl2 *getMarkBox(int i) const;
    // Take the box, releasing the former one.
    void setTitleBox(TextBoxImpl2 *box);
    void setMarkBox(int i, TextBoxImpl2 *box);

private:
    PaintExtent run(const AxisFrame &frame, AxisScaleView &scale, DrawArea *target);

    BoxContainer *container;
    DrawArea *canvas;
    bool isHidden;
    int x;
    int y;
    int offsetX;
    int offsetY;
    double angle;
    int alignment;
    int axisOffsetX;
    int axisOffsetY;
    int axisColor;
    int axisWidth;
    int labelGap;
    int titleGap;
    int labelAlignment;
    int minLabelSpace;
    TickStyle ticks;
    double tickOffset;
    double labelOffset;
    AxisLabelPrototype labelStyle;
    AxisTitle title;
    std::vector<MarkImpl *> marks;
    std::vector<AxisZone> zones;
    TextBoxImpl2 *titleBox;
    std::vector<TextBoxImpl2 *> markBoxes;
};
