// Free drawing on a canvas: the same drawing as a listing of its display list.
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "examples/gallery/GalleryScenes.h"
#include "foundation/Constants.h"

// A small scene that uses most kinds of record: shapes, lines, a gradient.
DrawArea *drawCanvasScene() {
    DrawArea *d = DrawArea::create();
    d->setSize(360, 240, 0xf4f6fa);
    const int fill[] = {0x4a90d9, 0xe4572e, 0x76b041, 0xffc914};
    int gradient = d->linearGradientColor(20, 20, 20, 120, 0xffffff, 0x4a90d9, false);
    d->rect(20, 20, 160, 120, 0x1f3a5f, gradient, 0);
    d->circle(250, 70, 50, 50, 0x333333, fill[1]);
    d->sector(90, 180, 50, 50, 0, 120, 0xffffff, fill[2]);
    d->ringSector(250, 180, 50, 50, 25, 25, 45, 300, 0xffffff, fill[3]);
    for (int i = 0; i < 6; ++i) d->line(180 + 20 * i, 130, 200 + 20 * i, 230, 0x555555, 1 + i / 2);
    int dashed = d->dashLineColor(0x1f3a5f, 0x0505);
    d->line(10, 232, 350, 232, dashed, 2);
    return d;
}

// The scene written to the file the sample names, in the format of its ending.
static bool saveScene(const std::string &path) {
    DrawArea *d = drawCanvasScene();
    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

VISTREL_GALLERY_SAMPLE("Canvas", "A free drawing: shapes, gradient, lines and a dash",
                       "canvas_scene.png", saveScene);
VISTREL_GALLERY_SAMPLE("Canvas", "The same drawing as a listing of its display list",
                       "canvas_scene.agf", saveScene);

// The same scene through every raster encoder, and a loaded picture tiled.
static bool loadedAndTiled(const std::string &path) {
    // A small picture made here, encoded, loaded back from the bytes and tiled.
    DrawArea *tile = DrawArea::create();
    tile->setSize(40, 40, 0xffffff);
    tile->circle(20, 20, 14, 14, 0x1f3a5f, 0x80e4572e);
    MemBlock png = tile->outPNG2();
    DrawArea *loaded = DrawArea::create();
    bool ok = loaded->load2(png.len, png.data, kPNG);
    tile->destroy();
    DrawArea *d = DrawArea::create();
    d->setSize(200, 120, 0xf4f6fa);
    d->tile(loaded, 0);
    ok = d->out(path.c_str()) && ok;
    loaded->destroy();
    d->destroy();
    return ok;
}

VISTREL_GALLERY_SAMPLE("Formats", "GIF (palette, LZW)", "format_scene.gif", saveScene);
VISTREL_GALLERY_SAMPLE("Formats", "JPEG, quality 80", "format_scene.jpg", saveScene);
VISTREL_GALLERY_SAMPLE("Formats", "BMP", "format_scene.bmp", saveScene);
VISTREL_GALLERY_SAMPLE("Formats", "WBMP (one bit a pixel)", "format_scene.wbmp", saveScene);
VISTREL_GALLERY_SAMPLE("Formats", "A PNG loaded back from its bytes and tiled",
                       "format_loaded_tile.png", loadedAndTiled);
