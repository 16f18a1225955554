#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "draw/svg/DrawSVG.h"

class SVGElement;

// The SVG document: a body of elements per surface (the canvas, or a symbol
// being defined) and one stream of definitions (paints, clips, symbols,
// images), each definition written once and named by id.
class DrawSVGImpl : public DrawSVG {
public:
    explicit DrawSVGImpl(MetaDraw *options);
    bool write(qlx::ostream &out) override;

protected:
    void startSurface(int width, int height) override;
    void clipSurface(const VectorBox *clip) override;
    void wrapSurface(const SurfaceWrap &wrap) override;
    void openSymbol(int id) override;
    void closeSymbol(int id, int width, int height) override;
    void placeSymbol(int id, const VectorBox &dest, int transparency) override;
    void rotateSymbol(int id, double cx, double cy, double angle) override;
    void writeBitmap(int id, const int *pixels, int width, int height, double x, double y) override;
    void writeEncodedImage(int id, const char *data, int length, int imageType, int width,
                           int height) override;
    void writePath(const VectorPath &path, const VectorPaint *fill, const VectorPaint *stroke,
                   const StrokeStyle &style) override;
    void beginLayerClip(const VectorBox &clip) override;
    void endLayerClip() override;
    void writeImage(const PixelBuffer &image, const VectorBox &dest) override;
    void writeGlyphs(const GlyphText &text, const GlyphRun &run, const VectorPaint *paint) override;

private:
    struct Body {
        std::string text;
        bool clipOpen = false;
    };
    struct Symbol {
        std::string id;
        int width, height;
    };

    std::string &body() { return bodies.back().text; }
    std::string newId(const char *prefix);
    // " fill='...'" or " stroke='...'" with its opacity: a colour or a definition.
    std::string paintAttributes(const char *name, const VectorPaint *paint);
    std::string clipFor(const VectorBox &box);
    std::string clipFor(const VectorPath &path);
    std::string pathData(const VectorPath &path) const;
    std::string pointsOf(const VectorPath &path) const;
    std::string matrixText(const Affine &map) const;
    void writeShape(SVGElement &e, const VectorPath &path) const;
    std::string bodyGroupTag() const;
    std::string documentStart() const;

    MetaDraw *options;
    int decimals;
    std::vector<Body> bodies;
    std::string defs;
    int nextId;
    std::map<int, std::string> brushIds;
    std::map<std::array<double, 4>, std::string> clipIds;
    std::map<int, std::string> bitmapIds;
    std::map<int, Symbol> symbols;
};
