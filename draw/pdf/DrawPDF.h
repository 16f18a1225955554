#pragma once

#include "draw/vector/VectorBackEnd.h"

class MetaDraw;

// The PDF back end: plays display-list records into a PDF 1.4 file of one page.
class DrawPDF : public VectorBackEnd {
public:
    // A file that reads its output options from `list` (may be null): "width",
    // "height", "pagewidth", "pageheight", "leftx", "topy", "dpi" and
    // "precisetext".
    static DrawPDF *create(MetaDraw *list);
    ~DrawPDF() override {}
};
