#pragma once

class FontFace;
class FontGlyph;

// One character of a laid-out text: its font, its rendered glyph (held with a
// reference) and its place.  The character kSpacer is an empty box of a given
// width and height.
class Glyph {
public:
    static constexpr int kSpacer = 65535;
    // The colour word meaning "the colour the text is drawn with".
    static constexpr int kDrawColor = -1;

    Glyph();
    Glyph(const Glyph &other);
    Glyph &operator=(const Glyph &other);
    ~Glyph();

    // Takes the face (with a reference) and its metrics.
    void setFace(FontFace *face, int flags);
    // Renders ch with the face, falling back to the missing-glyph box.  With
    // useAsReplacement the character drawn is ch while the source character
    // stays (mirrored and shaped forms).
    void makeGlyph(int ch, bool useAsReplacement);
    void makeSpacer(int width, int height);
    // Places the glyph with its pen at (x, y), y being the top of its line.
    void setPos(int direction, double x, int y);

    double getAdvance() const;
    bool isSpacer() const { return ch == kSpacer; }
    bool isBreak() const;
    static bool isBreakChar(int c) { return c == '\t' || c == ' ' || (c >= 0x2000 && c <= 0x200B); }

    int ch;
    int replacement;
    // A second source character the glyph stands for (the alef of a lam-alef
    // ligature), or 0.
    int ligated;
    bool rightToLeft;  // in a right-to-left stretch of its line
    FontFace *face;
    int flags;
    FontGlyph *glyph;
    int ascender;
    int descender;
    int lineSpacing;
    int color;
    int bgColor;
    int underline;
    int spacerWidth;
    int spacerHeight;
    int advanceTo;  // a spacer that reaches to this x; -1 when not
    int xOffset;
    int yOffset;  // positive up
    double x;
    int y;
    double right;
    int bottom;

private:
    void acquire();
    void drop();
};
