#include "draw/canvas/DrawAreaImpl.h"
#include "draw/codec/ImageEncoder.h"
#include "draw/list/MetaDraw.h"
#include "draw/raster/DrawBMP.h"

// The canvas reaches the raster only through these hooks, so that it builds
// without the raster.
namespace {

DrawBMP *asRaster(DrawBackEnd *b) {
    return dynamic_cast<DrawBMP *>(b);
}

DrawBackEnd *createRaster(DrawAreaImpl *canvas, DrawBackEnd *templateRaster) {
    return DrawBMP::create(canvas ? canvas->getMetaDraw() : nullptr, templateRaster);
}

void applySettings(DrawBackEnd *b, const DrawAreaImpl *canvas) {
    DrawBMP *r = asRaster(b);
    if (!r || !canvas) return;
    r->setAntiAlias(canvas->getAntiAliasShape(), canvas->getAntiAliasText());
    r->setInterlace(canvas->getInterlace());
    r->setTransparentColor(canvas->getTransparentColor());
    r->setDitherMethod(canvas->getDitherMethod());
    r->setPaletteMode(canvas->getPaletteMode());
}

int rasterGetPixel(DrawBackEnd *b, int x, int y) {
    DrawBMP *r = asRaster(b);
    return r ? r->getPixel(x, y) : kTransparent;
}

void rasterSetPixel(DrawBackEnd *b, int x, int y, int color) {
    if (DrawBMP *r = asRaster(b)) r->setPixel(x, y, color);
}

void rasterFloodFill(DrawBackEnd *b, int x, int y, int color, int borderColor) {
    if (DrawBMP *r = asRaster(b))
        r->floodFill(x, y, color, borderColor == DrawAreaImpl::kNoBorder ? -1 : borderColor);
}

void warpImage(DrawBackEnd *b, const ImageOps::ImageWarp &w) {
    if (DrawBMP *r = asRaster(b)) r->replaceImage(ImageOps::warp(r->copyImage(), w));
}

bool encodeRaster(DrawAreaImpl *canvas, int imageType, int quality, qlx::ostream &out) {
    DrawBMP *r = asRaster(canvas->getRaster());
    if (!r) return false;
    const char *alpha = canvas->getMetaDraw()->getOption("alpha");
    return ImageEncoder::encode(out, r->getImage(), imageType, quality, alpha);
}

bool encodeAlpha(DrawAreaImpl *canvas, qlx::ostream &out) {
    DrawBMP *r = asRaster(canvas->getRaster());
    return r && ImageEncoder::encodeAlpha(out, r->getImage());
}

}  // namespace

DrawAreaImpl::BackEndHooks DrawBMP::canvasHooks() {
    DrawAreaImpl::BackEndHooks hooks = {};
    hooks.createRaster = createRaster;
    hooks.applySettings = applySettings;
    hooks.getPixel = rasterGetPixel;
    hooks.setPixel = rasterSetPixel;
    hooks.floodFill = rasterFloodFill;
    hooks.warpImage = warpImage;
    hooks.encodeRaster = encodeRaster;
    hooks.encodeAlpha = encodeAlpha;
    return hooks;
}
