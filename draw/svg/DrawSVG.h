#pragma once

#include "draw/vector/VectorBackEnd.h"

class MetaDraw;

// The SVG back end: plays display-list records into an SVG document.
class DrawSVG : public VectorBackEnd {
public:
    // A document that reads its output options from `list` (may be null):
    // "noxmldecl", "nodoctype", "width", "height" and "precisetext".
    static DrawSVG *create(MetaDraw *list);
    ~DrawSVG() override {}
};
