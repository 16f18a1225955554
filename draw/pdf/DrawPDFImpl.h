#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "draw/pdf/DrawPDF.h"
#include "draw/pdf/PDFContent.h"
#include "draw/pdf/PDFDocument.h"

class PDFBrush;
class PDFFont;

// The PDF file: the canvas is a form drawn in pixels with y down (the form's
// matrix turns it into points with y up), and so are symbols and the pictures
// that whole-picture operations wrap.  Patterns, fonts, images and graphics
// states are shared objects, each written once.
class DrawPDFImpl : public DrawPDF {
public:
    explicit DrawPDFImpl(MetaDraw *options);
    ~DrawPDFImpl() override;
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
    struct Surface {
        PDFContent content;
        bool clipOpen = false;
    };
    struct Symbol {
        int form, width, height;
    };

    PDFContent &content() { return surfaces.back().content; }
    // A form of the content, its box [0, width] by [0, height].
    int writeForm(const std::string &content, double width, double height,
                  const std::string &extra);
    void placeImage(int image, const VectorBox &dest);
    PDFBrush &brushOf(const VectorPaint &paint);
    // Selects a paint for filling or stroking; false when it needs a soft mask.
    void selectPaint(const VectorPaint &paint, bool fill);
    bool needsMask(const VectorPaint &paint) const;
    void setAlpha(int fillAlpha, int strokeAlpha);
    std::string alphaState(int fillAlpha, int strokeAlpha);
    void setLineStyle(const StrokeStyle &style);
    void paintOne(const VectorPath &path, const VectorPaint &paint, bool fill,
                  const StrokeStyle &style);
    std::string maskState(const VectorPath &path, const VectorPaint &paint, bool fill,
                          const StrokeStyle &style);
    PDFFont &fontOf(const GlyphFont &font);
    std::string creationDate() const;
    double option(const char *name, double fallback) const;

    MetaDraw *options;
    PDFDocument doc;
    std::vector<Surface> surfaces;
    std::map<int, Symbol> symbols;
    std::map<int, int> bitmaps;
    std::map<int, std::unique_ptr<PDFBrush>> brushes;
    std::map<std::pair<int, int>, std::string> alphaStates;
    std::map<std::string, std::unique_ptr<PDFFont>> fonts;
};
