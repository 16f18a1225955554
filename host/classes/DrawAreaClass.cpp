// VSDrawAreaXPG: the canvas.
#include "host/abc/DrawArea.h"
#include "host/abc/TTFText.h"
#include "host/classes/ClassTables.h"
#include "host/classes/ColorMakers.h"
#include "host/glue/Factories.h"
#include "host/glue/Forward.h"
#include "host/glue/GlueArgs.h"
#include "host/glue/GlueSignature.h"
#include "host/glue/Lifetime.h"

using namespace glue;

namespace {

struct DrawAreaTarget {
    using Wrapper = abc::DrawArea;
    static constexpr const char *kWord = "drawarea";
    static Wrapper *wrapperOf(REALobject self) { return block(self)->handle; }
    static DrawAreaBlock *block(REALobject self) {
        return blockOf<DrawAreaBlock>(self, ClassId::DrawArea);
    }
};

template <auto Method, class... Arg>
constexpr auto fwd = forward<DrawAreaTarget, Method, Arg...>;

using DA = abc::DrawArea;

// New VSDrawAreaXPG: a canvas of its own, deleted with the object.
void construct(REALobject self) {
    if (getDebugging()) LogMessage("Constructor", static_cast<const void *>(self));
    DrawAreaBlock *b = DrawAreaTarget::block(self);
    if (b->handle) return;
    guard<void>([&] {
        b->handle = abc::DrawArea::create();
        b->ownsCanvas = b->handle != nullptr;
    });
}

template <class HostR, class Body>
HostR call(REALobject self, REALproc glue, Body &&body) {
    return callWrapper<DrawAreaTarget, HostR>(self, glue, body);
}

// The canvas keeps no copy of its drawing, so there is nothing to keep.
void removeDynamicLayer(REALobject self, RBBoolean) {
    call<void>(self, procOf(removeDynamicLayer), [](DA *d) { d->removeDynamicLayer(); });
}

REALarray getClipRect(REALobject self) {
    return call<REALarray>(self, procOf(getClipRect), [](DA *d) {
        int box[4] = {0, 0, 0, 0};
        d->getClipRect(&box[0], &box[1], &box[2], &box[3]);
        return newHostIntArray({4, box});
    });
}

// Four equal corners and four equal edges.
void roundedRect(REALobject self, double x1, double y1, double x2, double y2, RBInteger r,
                 RBInteger edgeColor, RBInteger fillColor) {
    call<void>(self, procOf(roundedRect), [&](DA *d) {
        int radius = PxAuto::in(r), edge = Color::in(edgeColor);
        const int radii[4] = {radius, radius, radius, radius};
        const int edges[4] = {edge, edge, edge, edge};
        d->roundedRect(PxD::in(x1), PxD::in(y1), PxD::in(x2), PxD::in(y2), radii, edges,
                       Color::in(fillColor));
    });
}

// Texts belong to the caller and hold the canvas, which they draw on.
REALobject text(REALobject self, REALstring str, REALstring font, double fontSize) {
    return call<REALobject>(self, procOf(text), [&](DA *d) {
        return NewTTFTextXPG(d->text(RBText(str), RBText(font), fontSize), self, nullptr);
    });
}

REALobject text2(REALobject self, REALstring str, REALstring font, RBInteger fontIndex,
                 double fontHeight, double fontWidth, double angle, RBBoolean vertical) {
    return call<REALobject>(self, procOf(text2), [&](DA *d) {
        abc::TTFText *t = d->text2(RBText(str), RBText(font), Int::in(fontIndex), fontHeight,
                                   fontWidth, angle, Bool::in(vertical));
        return NewTTFTextXPG(t, self, nullptr);
    });
}

// A nil block removes the entry; an empty one stores no bytes.
void setResource(REALobject self, REALstring id, REALobject data) {
    call<void>(self, procOf(setResource), [&](DA *d) {
        d->setResource(RBText(id), resourceBytes(data));
        keepHostValue(DrawAreaTarget::block(self)->resources, id, data);
    });
}

void setResource2(REALobject self, REALstring id, REALobject canvas) {
    call<void>(self, procOf(setResource2), [&](DA *d) {
        d->setResource2(RBText(id), Canvas::in(canvas));
        keepHostValue(DrawAreaTarget::block(self)->resources, id, canvas);
    });
}

RBInteger getHandle(REALobject self, RBInteger) {
    return reinterpret_cast<RBInteger>(DrawAreaTarget::block(self)->handle);
}

REALobject getResources(REALobject self, RBInteger) {
    REALobject resources = DrawAreaTarget::block(self)->resources;
    lockRef(resources);
    return resources;
}

// clang-format off
const MethodEntry kMethods[] = {
    method("Constructor()", construct),
    method("enableVectorOutput(enable as boolean = true)",
           fwd<&DA::enableVectorOutput, Bool>),
    method("initDynamicLayer()", fwd<&DA::initDynamicLayer>),
    method("removeDynamicLayer(keepOriginal as boolean = false)", removeDynamicLayer),
    method("setSize(width as integer, height as integer, bgColor as integer = &hFFFFFF)",
           fwd<&DA::setSize, Px, Px, Color>),
    method("setSize(width as integer, height as integer, bgColor as color)",
           fwd<&DA::setSize, Px, Px, ColorC>),
    method("resize(newWidth as integer, newHeight as integer, filter as integer = 1, "
           "blur as double = 1.0)", fwd<&DA::resize, Px, Px, Int, Dbl>),
    method("getWidth() as integer", fwd<&DA::getWidth>),
    method("getHeight() as integer", fwd<&DA::getHeight>),
    method("setClipRect(left as integer, top as integer, right as integer, bottom as integer)",
           fwd<&DA::setClipRect, Px, Px, Px, Px>),
    method("getClipRect() as integer()", getClipRect),
    method("setBgColor(c as integer)", fwd<&DA::setBgColor, Color>),
    method("setBgColor(c as color)", fwd<&DA::setBgColor, ColorC>),
    method("setBgDropShadow(c as integer = &hAAAAAA, offsetX as integer = 5, "
           "offsetY as integer = 5, blurRadius as integer = 5)",
           fwd<&DA::setBgDropShadow, Color, Px, Px, Px>),
    method("move(xOffset as double, yOffset as double, bgColor as integer = &hFFFFFF, "
           "filter as integer = 1, blur as double = 1.0)",
           fwd<&DA::move, PxD, PxD, Color, Int, Dbl>),
    method("rotate(angle as double, bgColor as integer, cx as double, cy as double, "
           "filter as integer = 1, blur as double = 1.0)",
           fwd<&DA::rotate, Dbl, Color, PxD, PxD, Int, Dbl>),
    method("hFlip()", fwd<&DA::hFlip>),
    method("vFlip()", fwd<&DA::vFlip>),
    method("clone(d as VSDrawAreaXPG, x as integer, y as integer, align as integer, "
           "newWidth as integer = -1, newHeight as integer = -1, filter as integer = 2, "
           "blur as double = 1.0)",
           fwd<&DA::clone, Canvas, Px, Px, Int, PxAuto, PxAuto, Int, Dbl>),
    method("pixel(x as integer, y as integer, c as integer)", fwd<&DA::pixel, Px, Px, Color>),
    method("pixel(x as integer, y as integer, c as color)", fwd<&DA::pixel, Px, Px, ColorC>),
    method("getPixel(x as integer, y as integer) as integer", fwd<&DA::getPixel, Px, Px>),
    method("hline(x1 as integer, x2 as integer, y as integer, c as integer)",
           fwd<&DA::hline, Px, Px, Px, Color>),
    method("hline(x1 as integer, x2 as integer, y as integer, c as color)",
           fwd<&DA::hline, Px, Px, Px, ColorC>),
    method("vline(y1 as integer, y2 as integer, x as integer, c as integer)",
           fwd<&DA::vline, Px, Px, Px, Color>),
    method("vline(y1 as integer, y2 as integer, x as integer, c as color)",
           fwd<&DA::vline, Px, Px, Px, ColorC>),
    method("line(x1 as double, y1 as double, x2 as double, y2 as double, "
           "colorValue as integer, lineWidth as integer = 1)",
           fwd<&DA::line, PxD, PxD, PxD, PxD, Color, Px>),
    method("line(x1 as double, y1 as double, x2 as double, y2 as double, "
           "colorValue as color, lineWidth as integer = 1)",
           fwd<&DA::line, PxD, PxD, PxD, PxD, ColorC, Px>),
    method("arc(cx as double, cy as double, rx as double, ry as double, a1 as double, "
           "a2 as double, c as integer)", fwd<&DA::arc, PxD, PxD, PxD, PxD, Dbl, Dbl, Color>),
    method("arc(cx as double, cy as double, rx as double, ry as double, a1 as double, "
           "a2 as double, c as color)", fwd<&DA::arc, PxD, PxD, PxD, PxD, Dbl, Dbl, ColorC>),
    method("rect(x1 as double, y1 as double, x2 as double, y2 as double, "
           "edgeColor as integer, fillColor as integer, raisedEffect as integer = 0)",
           fwd<&DA::rect, PxD, PxD, PxD, PxD, Color, Color, Int>),
    method("rect(x1 as double, y1 as double, x2 as double, y2 as double, "
           "edgeColor as color, fillColor as color, raisedEffect as integer = 0)",
           fwd<&DA::rect, PxD, PxD, PxD, PxD, ColorC, ColorC, Int>),
    method("roundedRect(x1 as double, y1 as double, x2 as double, y2 as double, "
           "radius as integer, edgeColor as integer, fillColor as integer)", roundedRect),
    method("polygon(x() as double, y() as double, edgeColor as integer, fillColor as integer)",
           fwd<&DA::polygon, PxDoubles, PxDoubles, Color, Color>),
    method("polygon(x() as double, y() as double, edgeColor as color, fillColor as color)",
           fwd<&DA::polygon, PxDoubles, PxDoubles, ColorC, ColorC>),
    method("polygon(x() as integer, y() as integer, edgeColor as integer, "
           "fillColor as integer)", fwd<&DA::polygon2, PxInts, PxInts, Color, Color>),
    method("curve(x() as double, y() as double, colorValue as integer, "
           "lineWidth as integer = 1)", fwd<&DA::curve, PxDoubles, PxDoubles, Color, Px>),
    method("polyShape(xy() as double, edgeColor as integer, fillColor as integer)",
           fwd<&DA::polyShape, PxDoubles, Color, Color>),
    method("surface(x1 as double, y1 as double, x2 as double, y2 as double, "
           "depthX as double, depthY as double, edgeColor as integer, fillColor as integer)",
           fwd<&DA::surface, PxD, PxD, PxD, PxD, PxD, PxD, Color, Color>),
    method("sector(cx as double, cy as double, rx as double, ry as double, a1 as double, "
           "a2 as double, edgeColor as integer, fillColor as integer)",
           fwd<&DA::sector, PxD, PxD, PxD, PxD, Dbl, Dbl, Color, Color>),
    method("sector(cx as double, cy as double, rx as double, ry as double, a1 as double, "
           "a2 as double, edgeColor as color, fillColor as color)",
           fwd<&DA::sector, PxD, PxD, PxD, PxD, Dbl, Dbl, ColorC, ColorC>),
    method("cylinder(cx as double, cy as double, rx as double, ry as double, a1 as double, "
           "a2 as double, depthX as double, depthY as double, edgeColor as integer, "
           "fillColor as integer)",
           fwd<&DA::cylinder, PxD, PxD, PxD, PxD, Dbl, Dbl, PxD, PxD, Color, Color>),
    method("circle(cx as double, cy as double, rx as double, ry as double, "
           "edgeColor as integer, fillColor as integer)",
           fwd<&DA::circle, PxD, PxD, PxD, PxD, Color, Color>),
    method("circle(cx as double, cy as double, rx as double, ry as double, "
           "edgeColor as color, fillColor as color)",
           fwd<&DA::circle, PxD, PxD, PxD, PxD, ColorC, ColorC>),
    method("ringSector(cx as double, cy as double, rx as double, ry as double, "
           "rx2 as double, ry2 as double, a1 as double, a2 as double, edgeColor as integer, "
           "fillColor as integer)",
           fwd<&DA::ringSector, PxD, PxD, PxD, PxD, PxD, PxD, Dbl, Dbl, Color, Color>),
    method("ring(cx as double, cy as double, rx as double, ry as double, rx2 as double, "
           "ry2 as double, edgeColor as integer, fillColor as integer)",
           fwd<&DA::ring, PxD, PxD, PxD, PxD, PxD, PxD, Color, Color>),
    method("gouraudTriangle(x0 as double, y0 as double, i0 as double, x1 as double, "
           "y1 as double, i1 as double, x2 as double, y2 as double, i2 as double, "
           "c as integer)",
           fwd<&DA::gouraudTriangle, PxD, PxD, Dbl, PxD, PxD, Dbl, PxD, PxD, Dbl, Color>),
    method("fill(x as integer, y as integer, colorValue as integer)",
           fwd<&DA::fill, Px, Px, Color>),
    method("fill(x as integer, y as integer, colorValue as color)",
           fwd<&DA::fill, Px, Px, ColorC>),
    method("fill(x as integer, y as integer, colorValue as integer, borderColor as integer)",
           fwd<&DA::fill2, Px, Px, Color, Color>),
    method("fill(x as integer, y as integer, colorValue as color, borderColor as color)",
           fwd<&DA::fill2, Px, Px, ColorC, ColorC>),
    method("text(str as string, font as string, fontSize as double) as VSTTFTextXPG", text),
    method("text(str as string, font as string, fontIndex as integer, fontHeight as double, "
           "fontWidth as double, angle as double, vertical as boolean) as VSTTFTextXPG", text2),
    method("text(str as string, font as string, fontSize as double, x as integer, "
           "y as integer, colorValue as integer)", fwd<&DA::text3, Str, Str, Dbl, Px, Px, Color>),
    method("text(str as string, font as string, fontSize as double, x as integer, "
           "y as integer, colorValue as color)", fwd<&DA::text3, Str, Str, Dbl, Px, Px, ColorC>),
    method("text(str as string, font as string, fontIndex as integer, fontHeight as double, "
           "fontWidth as double, angle as double, vertical as boolean, x as integer, "
           "y as integer, colorValue as integer, alignment as integer = 7)",
           fwd<&DA::text4, Str, Str, Int, Dbl, Dbl, Dbl, Bool, Px, Px, Color, Int>),
    method("text(str as string, font as string, fontIndex as integer, fontHeight as double, "
           "fontWidth as double, angle as double, vertical as boolean, x as integer, "
           "y as integer, colorValue as color, alignment as integer = 7)",
           fwd<&DA::text4, Str, Str, Int, Dbl, Dbl, Dbl, Bool, Px, Px, ColorC, Int>),
    method("textBlock(str as string, font as string, fontIndex as integer, "
           "fontHeight as double, fontWidth as double, angle as double, x as integer, "
           "y as integer, maxWidth as integer, maxLines as integer, colorValue as integer, "
           "alignment as integer = 7)",
           fwd<&DA::textBlock, Str, Str, Int, Dbl, Dbl, Dbl, Px, Px, Px, Int, Color, Int>),
    method("renderVSML(markup as string)", fwd<&DA::renderVSML, Str>),
    method("merge(d as VSDrawAreaXPG, x as integer, y as integer, align as integer = 7, "
           "transparency as integer = 0)", fwd<&DA::merge, Canvas, Px, Px, Int, Int>),
    method("mergeScaled(d as VSDrawAreaXPG, x as integer, y as integer, width as integer, "
           "height as integer, transparency as integer = 0)",
           fwd<&DA::mergeScaled, Canvas, Px, Px, Px, Px, Int>),
    method("mergeRotated(d as VSDrawAreaXPG, x as double, y as double, angle as double)",
           fwd<&DA::mergeRotated, Canvas, PxD, PxD, Dbl>),
    method("tile(d as VSDrawAreaXPG, transparency as integer = 0)",
           fwd<&DA::tile, Canvas, Int>),
    method("setSearchPath(path as string)", fwd<&DA::setSearchPath, Str>),
    method("loadGIF(path as string) as boolean", fwd<&DA::loadGIF, Str>),
    method("loadPNG(path as string) as boolean", fwd<&DA::loadPNG, Str>),
    method("loadJPG(path as string) as boolean", fwd<&DA::loadJPG, Str>),
    method("loadBMP(path as string) as boolean", fwd<&DA::loadBMP, Str>),
    method("loadWMP(path as string) as boolean", fwd<&DA::loadWMP, Str>),
    method("load(path as string) as boolean", fwd<&DA::load, Str>),
    method("load(data as MemoryBlock, imgType as integer = -1) as boolean",
           fwd<&DA::load2, Bytes, Int>),
    method("rAffineTransform(a as double, b as double, c as double, d as double, e as double, "
           "f as double, bgColor as integer = &hFFFFFF, filter as integer = 1, "
           "blur as double = 1.0)",
           fwd<&DA::rAffineTransform, Dbl, Dbl, Dbl, Dbl, PxD, PxD, Color, Int, Dbl>),
    method("affineTransform(a as double, b as double, c as double, d as double, e as double, "
           "f as double, bgColor as integer = &hFFFFFF, filter as integer = 1, "
           "blur as double = 1.0)",
           fwd<&DA::affineTransform, Dbl, Dbl, Dbl, Dbl, PxD, PxD, Color, Int, Dbl>),
    method("shearTransform(xShear as double, yShear as double, bgColor as integer = &hFFFFFF, "
           "filter as integer = 1, blur as double = 1.0)",
           fwd<&DA::shearTransform, Dbl, Dbl, Color, Int, Dbl>),
    method("waveTransform(period as double, amplitude as double, phase as double = 0, "
           "bgColor as integer = &hFFFFFF)", fwd<&DA::waveTransform, PxD, PxD, Dbl, Color>),
    method("sphereTransform(bgColor as integer = &hFFFFFF)",
           fwd<&DA::sphereTransform, Color>),
    method("hCylinderTransform(bgColor as integer = &hFFFFFF)",
           fwd<&DA::hCylinderTransform, Color>),
    method("vCylinderTransform(bgColor as integer = &hFFFFFF)",
           fwd<&DA::vCylinderTransform, Color>),
    method("vTriangleTransform(bgColor as integer = &hFFFFFF)",
           fwd<&DA::vTriangleTransform, Color>),
    method("hTriangleTransform(bgColor as integer = &hFFFFFF)",
           fwd<&DA::hTriangleTransform, Color>),
    method("out(path as string) as boolean", fwd<&DA::out, Str>),
    method("outGIF(path as string) as boolean", fwd<&DA::outGIF, Str>),
    method("outPNG(path as string) as boolean", fwd<&DA::outPNG, Str>),
    method("outJPG(path as string, quality as integer = 80) as boolean",
           fwd<&DA::outJPG, Str, Int>),
    method("outWMP(path as string) as boolean", fwd<&DA::outWMP, Str>),
    method("outBMP(path as string) as boolean", fwd<&DA::outBMP, Str>),
    method("outSVG(path as string, options as string = \"\") as boolean",
           fwd<&DA::outSVG, Str, Str>),
    method("outPDF(path as string) as boolean", fwd<&DA::outPDF, Str>),
    method("outAGF(path as string) as boolean", fwd<&DA::outAGF, Str>),
    method("outGIF2() as MemoryBlock", fwd<&DA::outGIF2>),
    method("outPNG2() as MemoryBlock", fwd<&DA::outPNG2>),
    method("outJPG2(quality as integer = 80) as MemoryBlock", fwd<&DA::outJPG2, Int>),
    method("outWMP2() as MemoryBlock", fwd<&DA::outWMP2>),
    method("outBMP2() as MemoryBlock", fwd<&DA::outBMP2>),
    method("outSVG2(options as string = \"\") as MemoryBlock", fwd<&DA::outSVG2, Str>),
    method("outPDF2() as MemoryBlock", fwd<&DA::outPDF2>),
    method("outAGF2() as MemoryBlock", fwd<&DA::outAGF2>),
    method("outAlpha2() as MemoryBlock", fwd<&DA::outAlpha2>),
    method("setOutputOptions(options as string)", fwd<&DA::setOutputOptions, Str>),
    method("setPaletteMode(value as integer)", fwd<&DA::setPaletteMode, Int>),
    method("setDitherMethod(value as integer)", fwd<&DA::setDitherMethod, Int>),
    method("setTransparentColor(c as integer)", fwd<&DA::setTransparentColor, Color>),
    method("setTransparentColor(c as color)", fwd<&DA::setTransparentColor, ColorC>),
    method("setAntiAliasText(value as integer)", fwd<&DA::setAntiAliasText, Int>),
    method("setAntiAlias(shapeAntiAlias as boolean = true, textAntiAlias as integer = 2)",
           fwd<&DA::setAntiAlias, Bool, Int>),
    method("setInterlace(value as boolean)", fwd<&DA::setInterlace, Bool>),
    method("setColorTable(colors() as integer, offset as integer)",
           fwd<&DA::setColorTable2, Ints, Int>),
    method("setColorTable(index as integer, colorValue as integer)",
           fwd<&DA::setColorTable, Int, Color>),
    method("getARGBColor(c as integer) as integer", fwd<&DA::getARGBColor, Color>),
    method("halfColor(c as integer) as integer", fwd<&DA::halfColor, Color>),
    method("adjustBrightness(c as integer, brightness as double) as integer",
           fwd<&DA::adjustBrightness, Color, Dbl>),
    method("allocDynColor() as integer", fwd<&DA::allocDynColor>),
    method("freeDynColor(c as integer)", fwd<&DA::freeDynColor, Color>),
};

const MethodEntry kTailMethods[] = {
    method("angleGradientColor(cx as double, cy as double, startAngle as double, "
           "endAngle as double, innerRadius as double, outerRadius as double, "
           "colors() as integer) as integer",
           fwd<&DA::angleGradientColor, PxD, PxD, Dbl, Dbl, PxD, PxD, Ints>),
    method("multiLayerColor(layers() as integer) as integer",
           fwd<&DA::multiLayerColor, Ints>),
    method("relativeLinearGradient(gradient() as integer, angle as double = 0.0, "
           "radius as double = -1.0) as integer",
           fwd<&DA::relativeLinearGradient, Ints, Dbl, Dbl>),
    method("relativeRadialGradient(gradient() as integer, radius as double = -1.0) "
           "as integer", fwd<&DA::relativeRadialGradient, Ints, Dbl>),
    method("xZoneColor(boundary as integer, leftColor as integer, rightColor as integer) "
           "as integer", fwd<&DA::xZoneColor, Px, Color, Color>),
    method("yZoneColor(boundary as integer, topColor as integer, bottomColor as integer) "
           "as integer", fwd<&DA::yZoneColor, Px, Color, Color>),
    method("setDefaultFonts(normal as string, bold as string = \"\", italic as string = \"\", "
           "boldItalic as string = \"\")", fwd<&DA::setDefaultFonts, Str, Str, Str, Str>),
    method("setFontTable(index as integer, font as string)", fwd<&DA::setFontTable, Int, Str>),
    method("setResource(id as string, data as MemoryBlock)", setResource),
    method("setResource(id as string, d as VSDrawAreaXPG)", setResource2),
};
// clang-format on

TableSpan<MethodEntry> methods() {
    static std::vector<MethodEntry> all;
    return joinTables(
        all, {tableOf(kMethods), colorMakerMethods<DrawAreaTarget>(), tableOf(kTailMethods)});
}

const PropertyEntry kProperties[] = {
    readOnlyProperty("Handle", "Integer", getHandle),
    readOnlyProperty("Resources", "Dictionary", getResources),
};

}  // namespace

const ClassTables kDrawAreaTables = {
    methods(),
    tableOf(kProperties),
    {nullptr, 0},
    {nullptr, 0},
    {nullptr, 0},
    reinterpret_cast<REALproc>(&InitBlockOf<ClassId::DrawArea>),
    reinterpret_cast<REALproc>(&DrawAreaDestructor),
};
