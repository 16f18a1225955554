#pragma once

#include "text/layout/TTFText.h"
#include "text/markup/ShapeSymbol.h"

class BlockAttributes;
class DrawArea;

// An "img" item of a text: a picture file, a resource, or a symbol.
class TTFImage : public TTFText {
public:
    static TTFImage *create(DrawArea *d, const BlockAttributes &attrs);

    int getWidth() override { return width; }
    int getHeight() override { return height; }
    int getBaseline() override { return height; }
    int getLineHeight() override { return height; }
    int getLineDistance() override { return height; }
    int getAscent() override { return height; }
    int getDescent() override { return 0; }
    bool layout(int, int, int) override { return true; }
    void draw(int x, int y, int color, int alignment) override;
    void drawAt(const TextTransform &t, double left, double top, int color) override;
    int getVAlign() override { return valign; }

    bool hasPicture() const { return picture != nullptr; }
    bool hasSymbol() const { return isSymbol; }
    const ShapeSymbol &getSymbol() const { return symbol; }

private:
    TTFImage(DrawArea *d, int width, int height, int valign);
    ~TTFImage() override;

    bool loadPicture(const std::wstring &file, int wantWidth, int wantHeight);
    static bool paintPlainShape(DrawArea *d, const ShapeSymbol &symbol, double cx, double cy,
                                int width, int height, int color, int edgeColor);

    DrawArea *canvas;
    int width;
    int height;
    int valign;
    DrawArea *picture;  // held with a reference
    bool isSymbol;
    ShapeSymbol symbol;
    int color;
    int edgeColor;
};
