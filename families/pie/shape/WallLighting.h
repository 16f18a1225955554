#pragma once

class DrawArea;
struct SectorGeometry;

// The light on a pie's walls: a horizontal lighting gradient across the pie
// for the curved walls, brighter left of the middle and falling away to both
// sides; reversed for the inside of a donut, which is lit from the other side.
// Flat walls along a radius take one darker shade.
class WallLighting {
public:
    // Brightness of the flat walls, in 1/1024 of the colour.
    static const int kFlatWallBrightness = 760;

    // A lighting colour of the canvas over the sector's width.
    static int curvedWall(DrawArea *d, int color, const SectorGeometry &g, bool inner);
    static int flatWall(DrawArea *d, int color);
};
