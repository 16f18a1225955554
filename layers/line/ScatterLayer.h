#pragma once

#include "layers/line/LineLayer.h"

// A line layer without lines: the data sets show as their symbols alone.
class ScatterLayer : public virtual LineLayer {
protected:
    ~ScatterLayer() override {}
};
