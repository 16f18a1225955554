#pragma once

#include <vector>

#include "chart/layer/LabelSpot.h"

class DrawObj;
class LayerImpl;
class TextBoxImpl;
class TextBoxImpl2;

// The labels of a layer's points for one paint: for each spot the label
// style that applies (a custom label, the data set's, the layer's), its
// template filled with the point's attributes, placed by the spot.  A label
// paints with kSameAsMainColor standing for its data set's colour.
class DataLabels {
public:
    explicit DataLabels(LayerImpl *layer) : layer(layer) {}
    ~DataLabels() { clear(); }
    DataLabels(const DataLabels &) = delete;
    DataLabels &operator=(const DataLabels &) = delete;

    // Replaces the labels of an earlier paint.
    void make(const std::vector<LabelSpot> &spots);
    void clear();
    // The labels as objects to paint, in the z order of their styles.
    void addTo(std::vector<DrawObj *> &objects) const;
    int getCount() const { return (int)labels.size(); }
    TextBoxImpl2 *getLabel(int i) const;

private:
    // The style a spot's label reads from and its template; null when the
    // spot gets no label.
    TextBoxImpl *styleOf(const LabelSpot &spot, const char **templateText) const;
    void makeLabel(const LabelSpot &spot);
    // Moves the alignment of a label near a side of the spot's range inward.
    void keepInside(TextBoxImpl2 *box, const LabelSpot &spot, int x, int y, int alignment) const;

    class Label;

    LayerImpl *layer;
    std::vector<Label *> labels;
};
