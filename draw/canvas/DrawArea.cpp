#include "draw/canvas/DrawArea.h"

#include "draw/canvas/CanvasTextService.h"
#include "draw/canvas/ColorModel.h"
#include "draw/canvas/DrawAreaImpl.h"
#include "draw/canvas/GlobalResources.h"
#include "draw/codec/ImageEncoder.h"
#include "draw/codec/ImageSniffer.h"
#include "foundation/Constants.h"

DrawArea *DrawArea::create() {
    return new DrawAreaImpl();
}

void DrawArea::close(DrawArea *d) {
    if (d) d->destroy();
}

const char *DrawArea::getResourceId(const char *name) {
    return name && name[0] == '@' && name[1] == '/' ? name + 2 : nullptr;
}

const wchar_t *DrawArea::getResourceId(const wchar_t *name) {
    return name && name[0] == L'@' && name[1] == L'/' ? name + 2 : nullptr;
}

int DrawArea::alignX(int w, int align) {
    if (align > 9) return 0;
    if (align == kBottomRight || align == kRight || align == kTopRight) return w - 1;
    if (align == kBottomCenter || align == kCenter || align == kTopCenter) return w / 2;
    return 0;
}

int DrawArea::alignY(int h, int align) {
    if (align < 1 || align > 6) return 0;
    return align <= 3 ? h - 1 : h / 2;
}

int DrawArea::getImageType(int length, const char *data) {
    return ImageSniffer::getType(length, (const unsigned char *)data);
}

void DrawArea::getImageSize(int length, const char *data, int *width, int *height) {
    ImageSniffer::getSize(length, (const unsigned char *)data, width, height);
}

const char *DrawArea::getMediaType(int imageType) {
    return ImageSniffer::getMediaType(imageType);
}

char *DrawArea::getGlobalResource(const char *id, int *length) {
    return GlobalResources::copyData(id, length);
}

DrawArea *DrawArea::getGlobalDrawAreaResource(const char *id) {
    return GlobalResources::getDrawArea(id);
}

void DrawArea::setGlobalResource(const char *id, const char *data, int length) {
    GlobalResources::setData(id, data, length);
    // "@Name" entries other than resource references are the process settings.
    if (id && id[0] == '@' && id[1] != '/') {
        std::string value = data ? std::string(data, length > 0 ? length : 0) : std::string();
        GlobalResources::setSetting(id, data ? value.c_str() : nullptr);
    }
}

void DrawArea::setGlobalDrawAreaResource(const char *id, DrawArea *d) {
    GlobalResources::setDrawArea(id, d);
}

int DrawArea::getPixelLimit() {
    return GlobalResources::getPixelLimit();
}

int DrawArea::getFileLimit() {
    return GlobalResources::getFileLimit();
}

int DrawArea::getGlyphCacheLimit() {
    return GlobalResources::getGlyphCacheLimit();
}

int DrawArea::getDefaultTextAA() {
    return GlobalResources::getDefaultTextAA();
}

int DrawArea::adjustBrightnessARGB(int color, int k) {
    return ColorModel::adjustBrightnessARGB(color, k);
}

bool DrawArea::encodePNG(qlx::ostream &out, const int *pixels, int width, int height) {
    return ImageEncoder::encodePNG(out, pixels, width, height);
}

int DrawArea::testFont(const char *font, int fontIndex, double fontHeight, double fontWidth,
                       char *report) {
    CanvasTextService *text = CanvasTextService::get();
    if (!text) {
        if (report) report[0] = 0;
        return 0;
    }
    return text->testFont(font, fontIndex, fontHeight, fontWidth, report);
}

void DrawArea::setFontSearchPath(const char *path) {
    if (CanvasTextService *text = CanvasTextService::get()) text->setFontSearchPath(path, false);
}

std::string DrawArea::getFontSearchPath() {
    CanvasTextService *text = CanvasTextService::get();
    return text ? text->getFontSearchPath(false) : std::string();
}

void DrawArea::setCustomFontSearchPath(const char *path) {
    if (CanvasTextService *text = CanvasTextService::get()) text->setFontSearchPath(path, true);
}

std::string DrawArea::getCustomFontSearchPath() {
    CanvasTextService *text = CanvasTextService::get();
    return text ? text->getFontSearchPath(true) : std::string();
}
