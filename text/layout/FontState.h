#pragma once

#include <string>

#include "text/font/FaceRef.h"
#include "text/markup/VSMLTag.h"

class DrawArea;

// The style in force while the mark-up is read.  A "font" key pushes a copy;
// "/font" goes back to it.
class FontState {
public:
    FontState();

    // Applies one inline key; returns false for keys that aren't style keys.
    // A pending spacer (advance, advanceto) is left in the state for the reader.
    bool apply(const VSMLTag::Pair &pair);
    // The face of the current font and size, opened on first use.  The caller
    // holds the font mutex.
    FontFace *getFace(DrawArea *d);

    void setFont(const std::string &name) {
        font = name.substr(0, 511);
        face.reset(nullptr);
    }
    void makeSubscript() { shrink(false); }
    void makeSuperscript() { shrink(true); }

    std::string font;
    int fontIndex;
    double height;  // points
    double width;   // points; 0 is the height
    int color;
    int bgColor;
    int underline;
    int pendingAdvance;    // -1 when none
    int pendingAdvanceTo;  // -1 when none
    int xOffset;
    int yOffset;  // positive up

private:
    void shrink(bool up);
    static double shrinkSize(double v);

    // Held, so that the driver keeps it while other fonts are opened.
    FaceRef face;
};
