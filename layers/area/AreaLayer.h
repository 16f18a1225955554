#pragma once

#include "chart/layer/Layer.h"

// A layer that fills the region between each data set's line and its base:
// the layer's base line, or under kStack and kPercentage the data set below.
// The shared operations of Layer apply: set3D, setBaseLine, setBorderColor
// for the edge, the labels.
class AreaLayer : public virtual Layer {
public:
    // Bands thinner than this many pixels get no data label; a negative size
    // labels all.
    virtual void setMinLabelSize(int size) = 0;
    // The fill across a gap in the data: kSameAsMainColor (the default)
    // bridges it in the data colour, kTransparent leaves a hole.
    virtual void setGapColor(int fillColor) = 0;

protected:
    ~AreaLayer() override {}
};
