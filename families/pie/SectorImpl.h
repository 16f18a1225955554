#pragma once

#include <string>

#include "families/pie/Sector.h"
#include "families/pie/SectorLabel.h"
#include "families/pie/SectorLook.h"
#include "families/pie/shape/SectorGeometry.h"

class BoxContainer;
class TextBoxImpl;
struct PieSettings;

// A sector: its value and label, the settings it has of its own, and what the
// pie's layout works out for it.
class SectorImpl : public Sector {
public:
    // Not set: the chart's setting applies.
    static const int kUnset = -1;

    SectorImpl(BoxContainer *chart, TextBoxImpl *labelPrototype, int index);

    void setStyle(int shadingMethod, int edgeColor, int edgeWidth) override;
    void setLabelFormat(const char *formatString) override;
    TextBox *setLabelStyle(const char *font, double fontSize, int fontColor) override;
    void setExplode(int distance) override;
    void setLabelPos(int pos, int joinLineColor) override;
    void setLabelLayout(int layoutMethod, int pos) override;
    void setJoinLine(int joinLineColor, int joinLineWidth) override;
    void setColor(int color, int edgeColor, int joinLineColor) override;
    const char *getImageCoor(int offsetX, int offsetY) override;
    const char *getLabelCoor(int offsetX, int offsetY) override;

    // A value that is not finite counts as kNoValue.
    void setData(double value, const char *label);
    int getIndex() const { return index; }
    double getValue() const { return value; }
    bool hasValue() const;
    const std::string &getLabelText() const { return labelText; }
    double getFraction() const { return fraction; }
    void setFraction(double f) { fraction = f; }
    // Whether the pie draws it: it has a value and a share of the whole.
    bool isDrawn() const { return hasValue() && fraction > 0; }
    int getColor() const { return color; }
    // 0 keeps the sector in place; -1 is the default distance.
    int getExplode() const { return explode; }

    // Settles the look from the sector's settings, the chart's and the
    // defaults of the label layout; radius is the pie's.
    void resolve(const PieSettings &pie, int radius);
    const SectorLook &getLook() const { return look; }
    SectorGeometry &getGeometry() { return geometry; }
    const SectorGeometry &getGeometry() const { return geometry; }
    SectorLabel &getLabel() { return label; }
    const SectorLabel &getLabel() const { return label; }
    void setLaidOut() { laidOut = true; }

private:
    int index;
    double value;
    double fraction;
    std::string labelText;
    int color;
    int edgeColor;
    int shading;
    int edgeWidth;
    int explode;
    std::string labelFormat;
    int labelPos;
    int labelLayout;
    int joinLineColor;
    int joinLineWidth;

    SectorLook look;
    SectorGeometry geometry;
    SectorLabel label;
    bool laidOut;
    std::string imageCoor;
};
