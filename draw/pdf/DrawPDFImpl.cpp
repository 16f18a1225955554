#include "draw/pdf/DrawPDFImpl.h"

#include <cmath>
#include <cstdlib>
#include <ctime>

#include "draw/codec/ImageDecoder.h"
#include "draw/list/MetaDraw.h"
#include "draw/pdf/PDFBrush.h"
#include "draw/pdf/PDFFont.h"
#include "draw/pdf/PDFImageWriter.h"
#include "draw/pdf/PDFTextWriter.h"
#include "draw/vector/NumberText.h"
#include "foundation/Stream.h"

namespace {

// Square caps and the mitre limit of the raster's joints.
const char kFormStart[] = "2 J 1.42 M\n";
const char kTransparencyGroup[] = "/Group<</S/Transparency/CS/DeviceRGB/I true>>";
const int kOpaque = 255;
const int kValueDecimals = 4;

std::string num(double v, int decimals = 3) {
    std::string s;
    NumberText::append(s, v, decimals);
    return s;
}

int opacityOf(int color) {
    return 255 - ColorWord::alphaByte(color);
}

}  // namespace

DrawPDF *DrawPDF::create(MetaDraw *list) {
    return new DrawPDFImpl(list);
}

DrawPDFImpl::DrawPDFImpl(MetaDraw *options) : options(options), surfaces(1) {}

DrawPDFImpl::~DrawPDFImpl() {}

double DrawPDFImpl::option(const char *name, double fallback) const {
    double v = options ? options->getOptionNumber(name, fallback) : fallback;
    return std::isfinite(v) && v > 0 && v < 1e7 ? v : fallback;
}

// ---- The file

int DrawPDFImpl::writeForm(const std::string &body, double width, double height,
                           const std::string &extra) {
    int id = doc.newObject();
    doc.setStream(id,
                  "/Type/XObject/Subtype/Form/Resources " +
                      PDFDocument::reference(PDFDocument::kResources) + kTransparencyGroup +
                      "/BBox[0 0 " + num(width) + " " + num(height) + "]" + extra,
                  kFormStart + body);
    return id;
}

std::string DrawPDFImpl::creationDate() const {
    std::time_t now = std::time(nullptr);
    std::tm t{};
    localtime_r(&now, &t);
    char buf[80];
    std::snprintf(buf, sizeof buf, "D:%04d%02d%02d%02d%02d%02d", t.tm_year + 1900, t.tm_mon + 1,
                  t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec);
    return buf;
}

bool DrawPDFImpl::write(qlx::ostream &out) {
    Surface &main = surfaces.front();
    std::string body = main.content.bytes();
    if (main.clipOpen) body += "Q\n";
    double W = surfaceWidth(), H = surfaceHeight();
    double perPixel = 72.0 / option("dpi", 96.0);
    double width = option("width", W * perPixel), height = option("height", H * perPixel);
    double pageWidth = option("pagewidth", width), pageHeight = option("pageheight", height);
    double left = options && options->getOption("leftx") ? options->getOptionNumber("leftx", 0)
                                                         : (pageWidth - width) * 0.5;
    double top = options && options->getOption("topy") ? options->getOptionNumber("topy", 0)
                                                       : (pageHeight - height) * 0.5;
    if (!std::isfinite(left) || !std::isfinite(top)) left = top = 0;
    // Pixels with y down onto points with y up.
    std::string matrix = "/Matrix[" + num(width / W, 10) + " 0 0 " + num(-height / H, 10) + " 0 " +
                         num(height) + "]";
    int form = writeForm(body, W, H, matrix);
    for (auto &f : fonts) f.second->write(doc);

    int pages = doc.newObject(), page = doc.newObject(), contents = doc.newObject();
    doc.setStream(contents, "",
                  "q 1 0 0 1 " + num(left) + " " + num(pageHeight - top - height) + " cm " +
                      doc.xobject(form) + " Do Q ");
    doc.setDictionary(page, "/Type/Page/MediaBox[0 0 " + num(pageWidth) + " " + num(pageHeight) +
                                "]/Parent " + PDFDocument::reference(pages) + "/Resources " +
                                PDFDocument::reference(PDFDocument::kResources) + "/Contents " +
                                PDFDocument::reference(contents) + kTransparencyGroup);
    doc.setDictionary(pages, "/Type/Pages/Kids[" + PDFDocument::reference(page) + "]/Count 1");
    int catalog = doc.newObject(), info = doc.newObject();
    doc.setDictionary(catalog, "/Type/Catalog/Pages " + PDFDocument::reference(pages) +
                                   "/OpenAction[" + PDFDocument::reference(page) + " /XYZ 0 0 1]");
    doc.setDictionary(info, "/CreationDate(" + creationDate() + ")/Creator(Vistrel)");
    doc.write(out, catalog, info);
    return true;
}

// ---- Surfaces

void DrawPDFImpl::startSurface(int, int) {
    content().clear();
    surfaces.back().clipOpen = false;
}

void DrawPDFImpl::clipSurface(const VectorBox *clip) {
    Surface &s = surfaces.back();
    if (s.clipOpen) s.content.restore();
    s.clipOpen = clip != nullptr;
    if (!clip) return;
    s.content.save();
    s.content.rect(*clip);
    s.content.raw("W n\n");
}

void DrawPDFImpl::wrapSurface(const SurfaceWrap &wrap) {
    int form = writeForm(content().bytes(), wrap.oldCanvas.width(), wrap.oldCanvas.height(), "");
    std::string name = doc.xobject(form);
    content().clear();
    PDFContent &c = content();
    if (wrap.shadow && opacityOf(wrap.shadowColor) > 0) {
        // The picture's alpha as a mask over a box of the shadow colour; the
        // reader has no blur to soften it with.
        int state = doc.newObject();
        std::string opacity = num(opacityOf(wrap.shadowColor) / 255.0, kValueDecimals);
        doc.setDictionary(state, "/Type/ExtGState/SMask<</S/Alpha/G " +
                                     PDFDocument::reference(form) + ">>/ca " + opacity + "/CA " +
                                     opacity);
        c.save();
        c.concat(wrap.map.after(Affine::translation(wrap.shadowX, wrap.shadowY)));
        c.graphicsState(doc.graphicsState(state));
        c.fillColor(wrap.shadowColor);
        c.rect(wrap.oldCanvas);
        c.raw("f\n");
        c.restore();
    }
    c.save();
    c.concat(wrap.map);
    if (wrap.clip) {
        c.path(*wrap.clip);
        c.raw("W n\n");
    }
    c.raw(name + " Do\n");
    c.restore();
}

void DrawPDFImpl::openSymbol(int) {
    surfaces.emplace_back();
}

void DrawPDFImpl::closeSymbol(int id, int width, int height) {
    if (surfaces.size() < 2) return;
    std::string body = content().bytes();
    if (surfaces.back().clipOpen) body += "Q\n";
    surfaces.pop_back();
    symbols[id] = Symbol{writeForm(body, width, height, ""), width, height};
}

void DrawPDFImpl::placeSymbol(int id, const VectorBox &dest, int transparency) {
    auto it = symbols.find(id);
    if (it == symbols.end()) return;
    const Symbol &s = it->second;
    PDFContent &c = content();
    c.save();
    if (transparency > 0) setAlpha(255 - transparency, 255 - transparency);
    c.concat(Affine(dest.width() / s.width, 0, 0, dest.height() / s.height, dest.left, dest.top));
    c.raw(doc.xobject(s.form) + " Do\n");
    c.restore();
}

void DrawPDFImpl::rotateSymbol(int id, double cx, double cy, double angle) {
    auto it = symbols.find(id);
    if (it == symbols.end()) return;
    const Symbol &s = it->second;
    double a = angle * 3.14159265358979 / 180, cs = std::cos(a), sn = std::sin(a);
    PDFContent &c = content();
    c.save();
    c.concat(Affine::translation(cx, cy)
                 .after(Affine(cs, -sn, sn, cs, 0, 0))
                 .after(Affine::translation(-s.width / 2.0, -s.height / 2.0)));
    c.raw(doc.xobject(s.form) + " Do\n");
    c.restore();
}

// ---- Images

void DrawPDFImpl::placeImage(int image, const VectorBox &dest) {
    PDFContent &c = content();
    c.save();
    // The image's top row at the top of the box: y runs down here.
    c.concat(Affine(dest.width(), 0, 0, -dest.height(), dest.left, dest.bottom));
    c.raw(doc.xobject(image) + " Do\n");
    c.restore();
}

void DrawPDFImpl::writeBitmap(int id, const int *pixels, int width, int height, double x,
                              double y) {
    int &image = bitmaps[id];
    if (!image) image = PDFImageWriter::write(doc, pixels, width, height);
    placeImage(image, VectorBox(x, y, x + width, y + height));
}

void DrawPDFImpl::writeEncodedImage(int, const char *data, int length, int imageType, int width,
                                    int height) {
    int w = width, h = height;
    int *pixels = ImageDecoder::decodeAllocated(data, length, imageType, &w, &h);
    if (pixels && w == width && h == height)
        placeImage(PDFImageWriter::write(doc, pixels, w, h), VectorBox(0, 0, w, h));
    std::free(pixels);
}

void DrawPDFImpl::writeImage(const PixelBuffer &image, const VectorBox &dest) {
    if (image.isEmpty()) return;
    placeImage(PDFImageWriter::write(doc, image.pixels.data(), image.width, image.height), dest);
}

// ---- Paints

PDFBrush &DrawPDFImpl::brushOf(const VectorPaint &paint) {
    std::unique_ptr<PDFBrush> &b = brushes[paint.id];
    if (!b) {
        b.reset(PDFBrush::create(paint, surfaceBox()));
        b->write(doc);
    }
    return *b;
}

bool DrawPDFImpl::needsMask(const VectorPaint &paint) const {
    return (paint.kind == VectorPaint::kLinear || paint.kind == VectorPaint::kRadial) &&
           paint.ramp.hasAlpha();
}

std::string DrawPDFImpl::alphaState(int fillAlpha, int strokeAlpha) {
    std::string &name = alphaStates[std::make_pair(fillAlpha, strokeAlpha)];
    if (name.empty()) {
        int id = doc.newObject();
        doc.setDictionary(id, "/Type/ExtGState/ca " + num(fillAlpha / 255.0, kValueDecimals) +
                                  "/CA " + num(strokeAlpha / 255.0, kValueDecimals));
        name = doc.graphicsState(id);
    }
    return name;
}

void DrawPDFImpl::setAlpha(int fillAlpha, int strokeAlpha) {
    PDFContent &c = content();
    if (fillAlpha == kOpaque && strokeAlpha == kOpaque && c.hasDefaultGraphicsState()) return;
    c.graphicsState(alphaState(fillAlpha, strokeAlpha));
}

void DrawPDFImpl::selectPaint(const VectorPaint &paint, bool fill) {
    PDFContent &c = content();
    if (paint.kind == VectorPaint::kSolid) {
        fill ? c.fillColor(paint.color) : c.strokeColor(paint.color);
        return;
    }
    std::string name = doc.pattern(brushOf(paint).colorPattern());
    fill ? c.fillPattern(name) : c.strokePattern(name);
}

void DrawPDFImpl::setLineStyle(const StrokeStyle &style) {
    PDFContent &c = content();
    c.lineWidth(style.width);
    c.dash(style.dash);
    c.lineCap(style.dash || style.wide ? 0 : 2);
    c.lineJoin(style.wide ? 1 : 0);
}

std::string DrawPDFImpl::maskState(const VectorPath &path, const VectorPaint &paint, bool fill,
                                   const StrokeStyle &style) {
    // The shape painted with the ramp's opacity in grey is the soft mask.
    std::string pattern = doc.pattern(brushOf(paint).alphaPattern());
    PDFContent mask;
    fill ? mask.raw("/Pattern cs " + pattern + " scn\n")
         : mask.raw("/Pattern CS " + pattern + " SCN\n");
    mask.lineWidth(style.width);
    mask.dash(style.dash);
    mask.lineCap(style.dash || style.wide ? 0 : 2);
    mask.lineJoin(style.wide ? 1 : 0);
    mask.path(path);
    mask.raw(fill ? "f*\n" : "S\n");
    int form = doc.newObject();
    doc.setStream(form,
                  "/Type/XObject/Subtype/Form/Resources " +
                      PDFDocument::reference(PDFDocument::kResources) + "/BBox[0 0 " +
                      num(surfaceWidth()) + " " + num(surfaceHeight()) +
                      "]/Group<</S/Transparency/CS/DeviceGray/I true>>",
                  kFormStart + mask.bytes());
    int state = doc.newObject();
    // The mask replaces any constant alpha in force.
    doc.setDictionary(state, "/Type/ExtGState/SMask<</S/Luminosity/G " +
                                 PDFDocument::reference(form) + ">>/ca 1/CA 1");
    return doc.graphicsState(state);
}

void DrawPDFImpl::paintOne(const VectorPath &path, const VectorPaint &paint, bool fill,
                           const StrokeStyle &style) {
    PDFContent &c = content();
    bool masked = needsMask(paint);
    if (masked) {
        std::string state = maskState(path, paint, fill, style);
        c.save();
        c.graphicsState(state);
    } else {
        int alpha = paint.kind == VectorPaint::kSolid ? opacityOf(paint.color) : kOpaque;
        setAlpha(fill ? alpha : kOpaque, fill ? kOpaque : alpha);
    }
    selectPaint(paint, fill);
    if (!fill) setLineStyle(style);
    c.path(path);
    c.raw(fill ? "f*\n" : "S\n");
    if (masked) c.restore();
}

void DrawPDFImpl::writePath(const VectorPath &path, const VectorPaint *fill,
                            const VectorPaint *stroke, const StrokeStyle &style) {
    if (fill && stroke && !needsMask(*fill) && !needsMask(*stroke)) {
        int fillAlpha = fill->kind == VectorPaint::kSolid ? opacityOf(fill->color) : kOpaque;
        int strokeAlpha = stroke->kind == VectorPaint::kSolid ? opacityOf(stroke->color) : kOpaque;
        setAlpha(fillAlpha, strokeAlpha);
        selectPaint(*fill, true);
        selectPaint(*stroke, false);
        setLineStyle(style);
        content().path(path);
        content().raw("B*\n");
        return;
    }
    if (fill) paintOne(path, *fill, true, style);
    if (stroke) paintOne(path, *stroke, false, style);
}

void DrawPDFImpl::beginLayerClip(const VectorBox &clip) {
    PDFContent &c = content();
    c.save();
    c.rect(clip);
    c.raw("W n\n");
}

void DrawPDFImpl::endLayerClip() {
    content().restore();
}

// ---- Text

PDFFont &DrawPDFImpl::fontOf(const GlyphFont &font) {
    std::unique_ptr<PDFFont> &f = fonts[PDFFont::keyOf(font)];
    if (!f) f.reset(PDFFont::create(doc, font));
    return *f;
}

void DrawPDFImpl::writeGlyphs(const GlyphText &text, const GlyphRun &run,
                              const VectorPaint *paint) {
    PDFFont &font = fontOf(run.font);
    int alpha = paint->kind == VectorPaint::kSolid ? opacityOf(paint->color) : kOpaque;
    setAlpha(alpha, alpha);
    selectPaint(*paint, true);
    if (run.font.syntheticBold) selectPaint(*paint, false);
    std::string name = doc.font(font.objectId());
    bool precise = options && options->getOption("precisetext");
    PDFTextWriter(content(), font, name, precise).write(text, run);
}
