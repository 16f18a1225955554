#include "draw/pdf/PDFContent.h"

#include "draw/vector/NumberText.h"

namespace {

const int kDecimals = 3;
const int kMatrixDecimals = 10;
const int kColorDecimals = 4;
// Not a state any setting matches.
const char kUnknown[] = "?";

std::string rgb(int color, const char *op) {
    std::string s;
    for (int shift = 16; shift >= 0; shift -= 8) {
        NumberText::append(s, (((unsigned)color >> shift) & 255) / 255.0, kColorDecimals);
        s += ' ';
    }
    return s + op + "\n";
}

}  // namespace

PDFContent::PDFContent() {
    // The state a form starts in, once its first line "2 J 1.42 M" is written.
    state.fill = rgb(0, "rg");
    state.stroke = rgb(0, "RG");
    state.dash = "[] 0 d\n";
}

void PDFContent::clear() {
    *this = PDFContent();
}

void PDFContent::forgetState() {
    state.fill = state.stroke = state.gs = state.dash = kUnknown;
    state.width = -1, state.cap = -1, state.join = -1;
}

PDFContent &PDFContent::num(double v) {
    NumberText::append(out, v, kDecimals);
    out += ' ';
    return *this;
}

PDFContent &PDFContent::integer(long long v) {
    NumberText::appendInt(out, v);
    out += ' ';
    return *this;
}

void PDFContent::save() {
    out += "q\n";
    saved.push_back(state);
}

void PDFContent::restore() {
    out += "Q\n";
    if (saved.empty()) {
        forgetState();
        return;
    }
    state = saved.back();
    saved.pop_back();
}

void PDFContent::concat(const Affine &m) {
    NumberText::appendMatrix(out, m, kMatrixDecimals);
    out += " cm\n";
}

void PDFContent::textMatrix(const Affine &m) {
    NumberText::appendMatrix(out, m, kMatrixDecimals);
    out += " Tm\n";
}

void PDFContent::path(const VectorPath &p) {
    for (const PathSegment &s : p.segments()) {
        switch (s.kind) {
            case PathSegment::kMove:
                num(s.x).num(s.y);
                out += "m\n";
                break;
            case PathSegment::kLine:
                num(s.x).num(s.y);
                out += "l\n";
                break;
            case PathSegment::kArc:
                VectorPath::forEachBezier(
                    s, [&](double x1, double y1, double x2, double y2, double ex, double ey) {
                        num(x1).num(y1).num(x2).num(y2).num(ex).num(ey);
                        out += "c\n";
                    });
                break;
            case PathSegment::kClose:
                out += "h\n";
                break;
        }
    }
}

void PDFContent::rect(const VectorBox &b) {
    num(b.left).num(b.top).num(b.width()).num(b.height());
    out += "re\n";
}

void PDFContent::set(std::string &current, const std::string &wanted) {
    if (current == wanted) return;
    current = wanted;
    out += wanted;
}

void PDFContent::fillColor(int color) {
    set(state.fill, rgb(color, "rg"));
}

void PDFContent::strokeColor(int color) {
    set(state.stroke, rgb(color, "RG"));
}

void PDFContent::fillPattern(const std::string &name) {
    set(state.fill, "/Pattern cs " + name + " scn\n");
}

void PDFContent::strokePattern(const std::string &name) {
    set(state.stroke, "/Pattern CS " + name + " SCN\n");
}

void PDFContent::graphicsState(const std::string &name) {
    set(state.gs, name + " gs\n");
}

void PDFContent::lineWidth(double width) {
    if (state.width == width) return;
    state.width = width;
    num(width);
    out += "w\n";
}

void PDFContent::dash(const std::vector<double> *runs) {
    std::string d = "[";
    if (runs)
        for (size_t i = 0; i < runs->size(); ++i) {
            if (i) d += ' ';
            NumberText::append(d, (*runs)[i], kDecimals);
        }
    set(state.dash, d + "] 0 d\n");
}

void PDFContent::lineCap(int cap) {
    if (state.cap == cap) return;
    state.cap = cap;
    integer(cap);
    out += "J\n";
}

void PDFContent::lineJoin(int join) {
    if (state.join == join) return;
    state.join = join;
    integer(join);
    out += "j\n";
}
