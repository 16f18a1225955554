#include "draw/pdf/PDFUnknownFont.h"

#include <cctype>
#include <cstring>

#include "draw/pdf/PDFDocument.h"

namespace {

// The standard fonts by a word of the lower-cased name; the first that
// matches wins, and the last row takes everything.
struct StandardFont {
    const char *word;
    const char *regular, *bold, *italic, *boldItalic;
};
const StandardFont kStandardFonts[] = {
    {"times", "Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic"},
    {"courier", "Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"},
    {"helvetica", "Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
    {"arial", "Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
    {"symbol", "Symbol", "Symbol", "Symbol", "Symbol"},
    {"zapf", "ZapfDingbats", "ZapfDingbats", "ZapfDingbats", "ZapfDingbats"},
    {"", "Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
};

// WinAnsi codes 128 to 159 and the characters they stand for (0: unused).
const int kWinAnsiHigh[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

}  // namespace

std::string PDFUnknownFont::standardName(const char *name, bool bold, bool italic) {
    std::string lower;
    for (const char *p = name ? name : ""; *p; ++p) lower += (char)std::tolower((unsigned char)*p);
    for (const StandardFont &f : kStandardFonts)
        if (lower.find(f.word) != std::string::npos)
            return bold ? (italic ? f.boldItalic : f.bold) : (italic ? f.italic : f.regular);
    return "Helvetica";
}

int PDFUnknownFont::winAnsiCode(int ch) {
    if ((ch >= 32 && ch < 127) || (ch >= 160 && ch <= 255)) return ch;
    for (int i = 0; i < 32; ++i)
        if (kWinAnsiHigh[i] == ch && ch) return 128 + i;
    return 0;
}

PDFUnknownFont::PDFUnknownFont(int id, const GlyphFont &font)
    : PDFFont(id), base(standardName(font.familyName, font.bold, font.italic)) {}

void PDFUnknownFont::addGlyph(std::string &operand, const PlacedGlyph &glyph, const GlyphText &text,
                              bool rightToLeft) {
    int count = rightToLeft ? 1 : glyph.charCount;
    for (int k = 0; k < count; ++k) {
        int i = glyph.firstChar + k;
        int ch = rightToLeft ? glyph.drawnChar
                             : (i >= 0 && i < (int)text.chars.size() ? text.chars[i] : 0);
        int code = winAnsiCode(ch);
        if (!code) code = '?';
        if (code == '(' || code == ')' || code == '\\') operand += '\\';
        operand += (char)code;
    }
}

void PDFUnknownFont::write(PDFDocument &doc) {
    doc.setDictionary(id,
                      "/Type/Font/Subtype/Type1/BaseFont/" + base + "/Encoding/WinAnsiEncoding");
}
