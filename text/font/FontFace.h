#pragma once

class FontGlyph;
class FontDriver;

// One font at one size and style.  Faces belong to the font driver; addRef and
// release only count the users.
class FontFace {
public:
    // Style bits.
    enum { kBold = 2, kItalic = 4 };

    FontFace() : ascender(0), descender(0), lineHeight(0) {}
    virtual ~FontFace() {}

    // The same font at factor times the size, on whole pixels where it nearly lands.
    virtual FontFace *scaled(double factor) = 0;
    // With a reference added, or null when the font has no such character.
    // flags: antialias mode in the low 6 bits, hinting at bit 16, bit 20 forces
    // the auto-hinter.
    virtual FontGlyph *getGlyph(int ch, int flags) = 0;
    virtual FontGlyph *getMissingGlyph(int ch, int flags) = 0;
    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual bool isItalic() = 0;
    virtual bool isBold() = 0;
    virtual bool isSyntheticItalic() = 0;
    virtual bool isSyntheticBold() = 0;
    virtual int getPixelSize() = 0;
    virtual const char *getFontName() = 0;
    // Null when the font stands in under a portable family name.
    virtual const char *getPostscriptName() = 0;
    virtual const char *getFileName() = 0;
    // The face within a collection file.
    virtual int getFaceIndex() = 0;
    // The em width over the em height.
    virtual double getWidthScale() = 0;
    virtual FontDriver *getDriver() = 0;

    // Pixels; the descender is positive.
    int ascender;
    int descender;
    int lineHeight;

    // Points at 96 pixels an inch.
    static int pointsToPixels(double points) { return (int)(points * 96 + 36) / 72; }
};
