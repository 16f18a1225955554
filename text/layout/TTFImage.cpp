#include "text/layout/TTFImage.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/ArrayViews.h"
#include "text/layout/TextSymbolService.h"
#include "text/layout/TextTransform.h"
#include "text/markup/BlockAttributes.h"
#include "text/markup/VSMLTag.h"

TTFImage::TTFImage(DrawArea *d, int w, int h, int v)
    : canvas(d),
      width(w),
      height(h),
      valign(v),
      picture(nullptr),
      isSymbol(false),
      color(kTransparent),
      edgeColor(kTransparent) {}

TTFImage::~TTFImage() {
    if (picture) picture->destroy();
}

TTFImage *TTFImage::create(DrawArea *d, const BlockAttributes &attrs) {
    int w = attrs.width, h = attrs.height;
    TTFImage *image = new TTFImage(d, 0, 0, attrs.valign);
    image->color = attrs.bgColor;
    image->edgeColor = attrs.edgeColor;
    const std::wstring &value = attrs.image;
    if (value.size() >= 2 && value[0] == L'@' && value[1] != L'/') {
        if (w <= 0 && h <= 0) w = h = 7;
        if (w <= 0) w = h;
        if (h <= 0) h = w;
        image->isSymbol = ShapeSymbol::parse(value, &image->symbol);
    } else if (!value.empty() && d && image->loadPicture(value, w, h)) {
        w = image->picture->getWidth();
        h = image->picture->getHeight();
    }
    // What can't be made leaves an empty box of the size asked for.
    image->width = std::max(1, std::min(w, 100000));
    image->height = std::max(1, std::min(h, 100000));
    return image;
}

bool TTFImage::loadPicture(const std::wstring &file, int wantWidth, int wantHeight) {
    std::string name = VSMLTag::toNarrow(file);
    char key[64];
    snprintf(key, sizeof(key), ":%d,%d", wantWidth, wantHeight);
    std::string cacheName = name + key;
    if (DrawArea *cached = canvas->getDrawAreaResource(cacheName.c_str())) {
        picture = cached;
        picture->retain();
        return true;
    }
    int length = 0;
    char *data = canvas->loadFile(name.c_str(), DrawArea::getFileLimit(), &length);
    if (!data) return false;
    DrawArea *source = DrawArea::create();
    bool ok = source->load2(length, data, -1);
    free(data);
    if (!ok) {
        source->destroy();
        return false;
    }
    int w = source->getWidth(), h = source->getHeight();
    if (wantWidth > 0 && wantHeight <= 0)
        wantHeight = (int)std::floor(0.5 + wantWidth * (double)h / w);
    if (wantHeight > 0 && wantWidth <= 0)
        wantWidth = (int)std::floor(0.5 + wantHeight * (double)w / h);
    if (wantWidth > 0 && (wantWidth != w || wantHeight != h)) {
        DrawArea *sized = DrawArea::create();
        sized->setSize(wantWidth, wantHeight, kTransparent);
        source->clone(sized, 0, 0, 7, wantWidth, wantHeight, 2, 1.0);
        source->destroy();
        source = sized;
    }
    canvas->setResource2(cacheName.c_str(), source);
    picture = source;
    return true;
}

void TTFImage::draw(int x, int y, int color, int alignment) {
    TextTransform t;
    drawAt(t, x - DrawArea::alignX(width, alignment), y - DrawArea::alignY(height, alignment),
           color);
}

void TTFImage::drawAt(const TextTransform &t, double left, double top, int) {
    if (!canvas) return;
    double cx, cy;
    t.map(left + width / 2.0, top + height / 2.0, &cx, &cy);
    if (picture) {
        if (!t.isRotated()) {
            double x, y;
            t.map(left, top, &x, &y);
            canvas->merge(picture, (int)std::floor(x + 0.5), (int)std::floor(y + 0.5), 7, 0);
        } else {
            canvas->mergeRotated(picture, cx, cy, std::atan2(-t.c, t.a) * 180 / 3.14159265358979);
        }
        return;
    }
    if (!isSymbol) return;
    TextSymbolService *service = TextSymbolService::get();
    if (!service || !service->drawSymbol(canvas, symbol, cx, cy, width, height, color, edgeColor))
        paintPlainShape(canvas, symbol, cx, cy, width, height, color, edgeColor);
}

bool TTFImage::paintPlainShape(DrawArea *d, const ShapeSymbol &s, double cx, double cy, int w,
                               int h, int color, int edgeColor) {
    double rx = w / 2.0, ry = h / 2.0;
    int shape = s.code & 0xFFF;
    if (s.tableIndex >= 0) return false;
    if (shape == 7 || shape == 15 || shape == 16 || shape == 17) {
        d->circle(cx, cy, rx, ry, edgeColor, color);
        return true;
    }
    double xs[4], ys[4];
    int n = 4;
    if (shape == 2) {
        double px[] = {cx, cx + rx, cx, cx - rx}, py[] = {cy - ry, cy, cy + ry, cy};
        std::copy(px, px + 4, xs), std::copy(py, py + 4, ys);
    } else if (shape == 3 || shape == 6) {
        double dir = shape == 3 ? 1 : -1;
        double px[] = {cx, cx + rx, cx - rx}, py[] = {cy - dir * ry, cy + dir * ry, cy + dir * ry};
        std::copy(px, px + 3, xs), std::copy(py, py + 3, ys);
        n = 3;
    } else {
        double px[] = {cx - rx, cx + rx, cx + rx, cx - rx},
               py[] = {cy - ry, cy - ry, cy + ry, cy + ry};
        std::copy(px, px + 4, xs), std::copy(py, py + 4, ys);
    }
    d->polygon(DoubleArray(xs, n), DoubleArray(ys, n), edgeColor, color);
    return true;
}
