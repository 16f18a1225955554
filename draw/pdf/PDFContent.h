#pragma once

#include <string>
#include <vector>

#include "draw/vector/Affine.h"
#include "draw/vector/VectorBox.h"
#include "draw/vector/VectorPath.h"

// A content stream being written.  It keeps the drawing state it has set (and
// the states saved by q), so a setting already in force isn't written again.
class PDFContent {
public:
    PDFContent();

    const std::string &bytes() const { return out; }
    bool isEmpty() const { return out.empty(); }
    void clear();
    // Text as it stands.
    PDFContent &raw(const std::string &s) {
        out += s;
        return *this;
    }
    // A coordinate (a thousandth of a pixel) and a blank.
    PDFContent &num(double v);
    PDFContent &integer(long long v);

    void save();
    void restore();
    void concat(const Affine &m);
    // The text matrix: from text space to the current space.
    void textMatrix(const Affine &m);
    void path(const VectorPath &p);
    void rect(const VectorBox &b);

    // Drawing state; the names are resources ("/P3", "/G9").
    void fillColor(int color);
    void strokeColor(int color);
    void fillPattern(const std::string &name);
    void strokePattern(const std::string &name);
    void graphicsState(const std::string &name);
    // True until a graphics state is selected (within the saved state).
    bool hasDefaultGraphicsState() const { return state.gs.empty(); }
    void lineWidth(double width);
    // Null for a solid line.
    void dash(const std::vector<double> *runs);
    // 0 butt, 1 round, 2 square.
    void lineCap(int cap);
    // 0 mitre, 1 round.
    void lineJoin(int join);
    // Whatever the state was, it is now unknown: the next setting is written.
    void forgetState();

private:
    struct State {
        std::string fill, stroke, gs, dash;
        double width = 1;
        int cap = 2, join = 0;
    };
    void set(std::string &current, const std::string &wanted);

    std::string out;
    State state;
    std::vector<State> saved;
};
