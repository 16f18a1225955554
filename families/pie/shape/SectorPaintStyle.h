#pragma once

// How one sector is painted: its colours, edge and the shading of its top.
struct SectorPaintStyle {
    int color = 0;
    int edgeColor = 0;
    int edgeWidth = 1;
    // kDefaultShading (0) to kRingShading (8); others fill plainly.
    int shading = 0;
    // The pie's extent, over which a global gradient runs, and its radius.
    int pieTop = 0;
    int pieBottom = 0;
};
