#include "draw/svg/DrawSVGImpl.h"

#include <cmath>
#include <memory>

#include "draw/codec/ImageSniffer.h"
#include "draw/list/MetaDraw.h"
#include "draw/svg/SVGBrush.h"
#include "draw/svg/SVGElement.h"
#include "draw/svg/SVGImageData.h"
#include "draw/svg/SVGTextWriter.h"
#include "draw/vector/NumberText.h"
#include "foundation/Stream.h"

namespace {

// Digits after the point: a thousandth of a pixel.
const int kDefaultDecimals = 3;
const int kTransformDecimals = 6;
const char kDocType[] =
    "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 20010904//EN' "
    "'http://www.w3.org/TR/2001/REC-SVG-20010904/DTD/svg10.dtd'>\n";
const char kGroupAttributes[] =
    " font-family='Arial' font-size='11px' fill='none' fill-rule='evenodd' "
    "stroke-linecap='square' stroke-miterlimit='1.42'";

}  // namespace

DrawSVG *DrawSVG::create(MetaDraw *list) {
    return new DrawSVGImpl(list);
}

DrawSVGImpl::DrawSVGImpl(MetaDraw *options)
    : options(options), decimals(kDefaultDecimals), bodies(1), nextId(0) {
    // "precisetext" with a number asks for that many digits after the point.
    double digits = options ? options->getOptionNumber("precisetext", 0) : 0;
    if (digits >= 1) decimals = (int)std::min(digits, (double)NumberText::kMaxDecimals);
}

std::string DrawSVGImpl::newId(const char *prefix) {
    std::string id = prefix;
    NumberText::appendInt(id, nextId++);
    return id;
}

// ---- The document

std::string DrawSVGImpl::documentStart() const {
    std::string s;
    if (!options || !options->getOption("noxmldecl"))
        s += "<?xml version='1.0' encoding='UTF-8' standalone='no'?>\n";
    if (!options || !options->getOption("nodoctype")) s += kDocType;
    std::string viewBox = "0 0 ";
    NumberText::appendInt(viewBox, surfaceWidth());
    viewBox += ' ';
    NumberText::appendInt(viewBox, surfaceHeight());
    const char *w = options ? options->getOption("width") : nullptr;
    const char *h = options ? options->getOption("height") : nullptr;
    SVGElement svg(s, "svg", decimals);
    svg.raw("viewBox", viewBox);
    if (w && *w)
        svg.attr("width", w);
    else
        svg.integer("width", surfaceWidth());
    if (h && *h)
        svg.attr("height", h);
    else
        svg.integer("height", surfaceHeight());
    svg.attr("xmlns", "http://www.w3.org/2000/svg")
        .attr("xmlns:xlink", "http://www.w3.org/1999/xlink")
        .attr("xml:space", "preserve");
    svg.open();
    s += "\n<style>text,tspan {white-space:pre}</style>\n";
    return s;
}

std::string DrawSVGImpl::bodyGroupTag() const {
    return std::string("<g") + kGroupAttributes + ">\n";
}

bool DrawSVGImpl::write(qlx::ostream &out) {
    std::string doc = documentStart();
    if (!defs.empty()) doc += "<defs>\n" + defs + "</defs>\n";
    doc += bodyGroupTag();
    doc += bodies.front().text;
    if (bodies.front().clipOpen) doc += "</g>\n";
    doc += "</g>\n</svg>\n";
    out.write(doc.data(), (int)doc.size());
    return true;
}

// ---- Surfaces

void DrawSVGImpl::startSurface(int, int) {
    body().clear();
    bodies.back().clipOpen = false;
}

std::string DrawSVGImpl::clipFor(const VectorBox &box) {
    std::string &id = clipIds[{box.left, box.top, box.right, box.bottom}];
    if (id.empty()) {
        id = newId("cp");
        SVGElement clip(defs, "clipPath", decimals);
        clip.attr("id", id).open();
        SVGElement rect(defs, "rect", decimals);
        rect.number("x", box.left)
            .number("y", box.top)
            .number("width", std::max(box.width(), 0.0))
            .number("height", std::max(box.height(), 0.0));
        rect.close();
        defs += "</clipPath>\n";
    }
    return id;
}

std::string DrawSVGImpl::clipFor(const VectorPath &path) {
    std::string id = newId("cp");
    SVGElement clip(defs, "clipPath", decimals);
    clip.attr("id", id).open();
    SVGElement p(defs, "path", decimals);
    p.raw("d", pathData(path));
    p.close();
    defs += "</clipPath>\n";
    return id;
}

void DrawSVGImpl::clipSurface(const VectorBox *clip) {
    Body &b = bodies.back();
    if (b.clipOpen) b.text += "</g>\n";
    b.clipOpen = clip != nullptr;
    if (clip) b.text += "<g clip-path='url(#" + clipFor(*clip) + ")'>\n";
}

std::string DrawSVGImpl::matrixText(const Affine &map) const {
    std::string v = "matrix(";
    NumberText::appendMatrix(v, map, kTransformDecimals);
    return v + ")";
}

void DrawSVGImpl::wrapSurface(const SurfaceWrap &wrap) {
    std::string content;
    content.swap(body());
    std::string open, close;
    if (wrap.shadow) {
        // The picture's alpha, moved, blurred and tinted, under the picture.
        std::string id = newId("b");
        double reach = 3 * wrap.shadowBlur + std::fabs(wrap.shadowX) + std::fabs(wrap.shadowY);
        double x, y;
        wrap.map.apply(0, 0, &x, &y);
        SVGElement f(defs, "filter", decimals);
        f.attr("id", id)
            .attr("filterUnits", "userSpaceOnUse")
            .number("x", x - reach)
            .number("y", y - reach)
            .number("width", wrap.oldCanvas.width() + 2 * reach)
            .number("height", wrap.oldCanvas.height() + 2 * reach);
        f.open();
        SVGElement offset(defs, "feOffset", decimals);
        offset.attr("result", "ofA").attr("in", "SourceAlpha");
        offset.number("dx", wrap.shadowX).number("dy", wrap.shadowY).close();
        const char *last = "ofA";
        if (wrap.shadowBlur > 0) {
            SVGElement blur(defs, "feGaussianBlur", decimals);
            blur.attr("result", "brR")
                .attr("in", "ofA")
                .number("stdDeviation", wrap.shadowBlur * 0.5);
            blur.close();
            last = "brR";
        }
        unsigned c = (unsigned)wrap.shadowColor;
        std::string values = "0 0 0 0 ";
        const double channel[3] = {((c >> 16) & 255) / 255.0, ((c >> 8) & 255) / 255.0,
                                   (c & 255) / 255.0};
        for (int i = 0; i < 3; ++i) {
            NumberText::append(values, channel[i], 4);
            values += i < 2 ? " 0 0 0 0 " : " 0 0 0 ";
        }
        NumberText::append(values, (255 - (c >> 24)) / 255.0, 4);
        values += " 0";
        SVGElement matrix(defs, "feColorMatrix", decimals);
        matrix.attr("type", "matrix").attr("result", "cmR").attr("in", last).raw("values", values);
        matrix.close();
        SVGElement blend(defs, "feBlend", decimals);
        blend.attr("in", "SourceGraphic").attr("in2", "cmR").close();
        defs += "</filter>\n";
        open += "<g filter='url(#" + id + ")'>\n";
        close = "</g>\n" + close;
    }
    if (!wrap.map.isIdentity()) {
        open += "<g transform='" + matrixText(wrap.map) + "'>\n";
        close = "</g>\n" + close;
    }
    open += "<g clip-path='url(#" + clipFor(wrap.oldCanvas) + ")'>\n";
    close = "</g>\n" + close;
    if (wrap.clip) {
        open += "<g clip-path='url(#" + clipFor(*wrap.clip) + ")'>\n";
        close = "</g>\n" + close;
    }
    body() = open + content + close;
}

// ---- Symbols and images

void DrawSVGImpl::openSymbol(int) {
    bodies.emplace_back();
}

void DrawSVGImpl::closeSymbol(int id, int width, int height) {
    if (bodies.size() < 2) return;
    Body b;
    std::swap(b, bodies.back());
    bodies.pop_back();
    Symbol &s = symbols[id];
    s.id = newId("g"), s.width = width, s.height = height;
    std::string viewBox = "0 0 ";
    NumberText::appendInt(viewBox, width);
    viewBox += ' ';
    NumberText::appendInt(viewBox, height);
    SVGElement symbol(defs, "symbol", decimals);
    symbol.attr("id", s.id).raw("viewBox", viewBox).attr("preserveAspectRatio", "none").open();
    defs += '\n';
    defs += bodyGroupTag();
    defs += b.text;
    if (b.clipOpen) defs += "</g>\n";
    defs += "</g>\n</symbol>\n";
}

void DrawSVGImpl::placeSymbol(int id, const VectorBox &dest, int transparency) {
    auto it = symbols.find(id);
    if (it == symbols.end()) return;
    SVGElement use(body(), "use", decimals);
    use.raw("xlink:href", "#" + it->second.id)
        .number("x", dest.left)
        .number("y", dest.top)
        .number("width", dest.width())
        .number("height", dest.height());
    if (transparency > 0) use.number("opacity", (255 - transparency) / 255.0);
    use.close();
}

void DrawSVGImpl::rotateSymbol(int id, double cx, double cy, double angle) {
    auto it = symbols.find(id);
    if (it == symbols.end()) return;
    const Symbol &s = it->second;
    std::string t = "translate(";
    NumberText::append(t, cx, decimals);
    t += ' ';
    NumberText::append(t, cy, decimals);
    t += ") rotate(";
    NumberText::append(t, angle, kTransformDecimals);
    t += ')';
    SVGElement use(body(), "use", decimals);
    use.raw("xlink:href", "#" + s.id)
        .number("x", -s.width / 2.0)
        .number("y", -s.height / 2.0)
        .integer("width", s.width)
        .integer("height", s.height)
        .raw("transform", t);
    use.close();
}

void DrawSVGImpl::writeBitmap(int id, const int *pixels, int width, int height, double x,
                              double y) {
    std::string &ref = bitmapIds[id];
    if (ref.empty()) {
        ref = newId("b");
        SVGElement image(defs, "image", decimals);
        image.attr("id", ref)
            .integer("width", width)
            .integer("height", height)
            .raw("xlink:href", SVGImageData::ofPixels(pixels, width, height));
        image.close();
    }
    SVGElement use(body(), "use", decimals);
    use.raw("xlink:href", "#" + ref).number("x", x).number("y", y).close();
}

void DrawSVGImpl::writeEncodedImage(int, const char *data, int length, int imageType, int width,
                                    int height) {
    SVGElement image(body(), "image", decimals);
    image.integer("x", 0)
        .integer("y", 0)
        .integer("width", width)
        .integer("height", height)
        .attr("preserveAspectRatio", "none")
        .raw("xlink:href",
             SVGImageData::ofBytes(data, length, ImageSniffer::getMediaType(imageType)));
    image.close();
}

void DrawSVGImpl::writeImage(const PixelBuffer &image, const VectorBox &dest) {
    SVGElement e(body(), "image", decimals);
    e.number("x", dest.left)
        .number("y", dest.top)
        .number("width", dest.width())
        .number("height", dest.height())
        .attr("preserveAspectRatio", "none")
        .raw("xlink:href", SVGImageData::ofPixels(image.pixels.data(), image.width, image.height));
    e.close();
}

// ---- Paths, paints, text

std::string DrawSVGImpl::paintAttributes(const char *name, const VectorPaint *paint) {
    std::string s = " ";
    s += name;
    s += "='";
    if (paint->kind == VectorPaint::kSolid) {
        s += SVGElement::colorText(paint->color) + "'";
        int alpha = ColorWord::alphaByte(paint->color);
        if (alpha) {
            s += std::string(" ") + name + "-opacity='";
            NumberText::append(s, (255 - alpha) / 255.0, 4);
            s += "'";
        }
        return s;
    }
    std::string &id = brushIds[paint->id];
    if (id.empty()) {
        id = newId("b");
        std::unique_ptr<SVGBrush> brush(SVGBrush::create(*paint, decimals));
        if (brush) brush->write(defs, id);
    }
    return s + "url(#" + id + ")'";
}

std::string DrawSVGImpl::pathData(const VectorPath &path) const {
    std::string d;
    for (const PathSegment &s : path.segments()) {
        if (!d.empty()) d += ' ';
        switch (s.kind) {
            case PathSegment::kMove:
            case PathSegment::kLine:
                d += s.kind == PathSegment::kMove ? "M" : "L";
                break;
            case PathSegment::kArc:
                d += "A";
                NumberText::append(d, s.rx, decimals);
                d += ' ';
                NumberText::append(d, s.ry, decimals);
                d += std::fabs(s.sweep) > 3.14159265358979 ? " 0 1 " : " 0 0 ";
                d += s.sweep > 0 ? "1 " : "0 ";
                break;
            case PathSegment::kClose:
                d += 'Z';
                continue;
        }
        NumberText::append(d, s.x, decimals);
        d += ' ';
        NumberText::append(d, s.y, decimals);
    }
    return d;
}

std::string DrawSVGImpl::pointsOf(const VectorPath &path) const {
    std::string points;
    const std::vector<PathSegment> &steps = path.segments();
    for (size_t i = 0; i < steps.size(); ++i) {
        const PathSegment &s = steps[i];
        if (s.kind == PathSegment::kClose) continue;
        // A polygon closes itself: its first point isn't written again.
        bool closing =
            path.form == VectorPath::kPolygon && i > 0 && s.x == steps[0].x && s.y == steps[0].y;
        if (closing) continue;
        if (!points.empty()) points += ' ';
        NumberText::append(points, s.x, decimals);
        points += ',';
        NumberText::append(points, s.y, decimals);
    }
    return points;
}

void DrawSVGImpl::writePath(const VectorPath &path, const VectorPaint *fill,
                            const VectorPaint *stroke, const StrokeStyle &style) {
    bool lines = true;
    for (const PathSegment &s : path.segments()) lines = lines && s.kind != PathSegment::kArc;
    std::string &out = body();
    const char *tag = path.form == VectorPath::kRect                ? "rect"
                      : lines && path.form == VectorPath::kPolygon  ? "polygon"
                      : lines && path.form == VectorPath::kPolyline ? "polyline"
                                                                    : "path";
    SVGElement e(out, tag, decimals);
    if (path.form == VectorPath::kRect) {
        VectorBox b = path.bounds();
        e.number("x", b.left)
            .number("y", b.top)
            .number("width", b.width())
            .number("height", b.height());
        if (path.cornerRadius > 0)
            e.number("rx", path.cornerRadius).number("ry", path.cornerRadius);
    } else if (tag[0] == 'p' && tag[1] == 'o') {
        e.raw("points", pointsOf(path));
    } else {
        e.raw("d", pathData(path));
    }
    if (fill) e.append(paintAttributes("fill", fill));
    if (stroke) {
        e.append(paintAttributes("stroke", stroke));
        if (style.width != 1) e.number("stroke-width", style.width);
        if (style.dash) {
            std::string runs;
            for (double r : *style.dash) {
                if (!runs.empty()) runs += ' ';
                NumberText::append(runs, r, decimals);
            }
            e.raw("stroke-dasharray", runs);
        }
        if (style.dash || style.wide) e.attr("stroke-linecap", "butt");
        if (style.wide) e.attr("stroke-linejoin", "round");
    }
    e.close();
}

void DrawSVGImpl::beginLayerClip(const VectorBox &clip) {
    body() += "<g clip-path='url(#" + clipFor(clip) + ")'>\n";
}

void DrawSVGImpl::endLayerClip() {
    body() += "</g>\n";
}

void DrawSVGImpl::writeGlyphs(const GlyphText &text, const GlyphRun &run,
                              const VectorPaint *paint) {
    bool precise = options && options->getOption("precisetext");
    SVGTextWriter(body(), paintAttributes("fill", paint), precise, decimals).write(text, run);
}
