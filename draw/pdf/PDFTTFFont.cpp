#include "draw/pdf/PDFTTFFont.h"

#include <cstdio>
#include <set>

#include "draw/pdf/PDFDocument.h"
#include "draw/pdf/font/TrueTypeSubset.h"
#include "draw/vector/NumberText.h"

namespace {

// Entries of one bfchar group of the ToUnicode map.
const int kUnicodeGroup = 100;
const int kSymbolic = 4, kFixedPitch = 1, kItalic = 64;

void appendHex4(std::string &s, unsigned v) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "%04X", v & 0xFFFF);
    s += buf;
}

// UTF-16 code units of a character: one, or a surrogate pair.
void appendUnits(std::string &s, int ch) {
    if (ch >= 0x10000 && ch <= 0x10FFFF) {
        appendHex4(s, 0xD800 + ((ch - 0x10000) >> 10));
        appendHex4(s, 0xDC00 + ((ch - 0x10000) & 0x3FF));
    } else {
        appendHex4(s, (unsigned)ch);
    }
}

std::string number(double v) {
    std::string s;
    NumberText::append(s, v, 0);
    return s;
}

}  // namespace

PDFTTFFont::PDFTTFFont(int id, PDFFontFiles::Bytes bytes, int faceIndex, const GlyphFont &glyphFont)
    : PDFFont(id),
      file(std::move(bytes)),
      parsed(false),
      familyName(glyphFont.familyName ? glyphFont.familyName : "") {
    if (file)
        parsed = font.parse(reinterpret_cast<const unsigned char *>(file->data()), file->size(),
                            faceIndex);
}

void PDFTTFFont::addGlyph(std::string &operand, const PlacedGlyph &glyph, const GlyphText &text,
                          bool rightToLeft) {
    unsigned id = glyph.glyphId < (unsigned)font.glyphCount() ? glyph.glyphId : 0;
    appendHex4(operand, id);
    std::vector<int> &chars = used[(int)id];
    if (!chars.empty() || id == 0) return;
    if (rightToLeft && glyph.drawnChar) {
        chars.push_back(glyph.drawnChar);
        return;
    }
    for (int k = 0; k < glyph.charCount; ++k) {
        int i = glyph.firstChar + k;
        if (i >= 0 && i < (int)text.chars.size()) chars.push_back(text.chars[i]);
    }
}

double PDFTTFFont::advanceOf(const PlacedGlyph &glyph) const {
    return scaled(font.advanceWidth((int)glyph.glyphId));
}

std::string PDFTTFFont::baseName() const {
    std::string name = font.postscriptName();
    if (name.empty())
        for (char c : familyName)
            if (c > 32 && c < 127 && c != '/' && c != '(' && c != ')' && c != '<' && c != '>' &&
                c != '[' && c != ']' && c != '{' && c != '}' && c != '%')
                name += c;
    if (name.empty()) name = "Unknown-Font";
    // A subset's name starts with six capitals of its own.
    unsigned hash = 2166136261u;
    for (const auto &g : used) hash = (hash ^ (unsigned)g.first) * 16777619u;
    std::string tag;
    for (int i = 0; i < 6; ++i, hash /= 26) tag += (char)('A' + hash % 26);
    return tag + "+" + name;
}

std::string PDFTTFFont::widths() const {
    std::string w = "/W[";
    for (const auto &g : used) {
        w += number(g.first) + "[" + number(scaled(font.advanceWidth(g.first))) + "]";
    }
    return w + "]";
}

std::string PDFTTFFont::toUnicode(const std::map<int, std::vector<int>> &glyphs) {
    std::string body;
    std::vector<std::string> lines;
    for (const auto &g : glyphs) {
        if (g.second.empty()) continue;
        std::string line = "<";
        appendHex4(line, (unsigned)g.first);
        line += "> <";
        for (int ch : g.second) appendUnits(line, ch);
        lines.push_back(line + ">\n");
    }
    std::string s =
        "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n/CIDSystemInfo\n<< "
        "/Registry (Adobe)\n/Ordering (UCS)\n/Supplement 0\n>> def\n/CMapName /Adobe-Identity-UCS "
        "def\n/CMapType 2 def\n1 begincodespacerange\n<0000><FFFF>\nendcodespacerange\n";
    for (size_t i = 0; i < lines.size(); i += kUnicodeGroup) {
        size_t n = std::min(lines.size() - i, (size_t)kUnicodeGroup);
        s += number((double)n) + " beginbfchar\n";
        for (size_t k = i; k < i + n; ++k) s += lines[k];
        s += "endbfchar\n";
    }
    return s + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend";
}

int PDFTTFFont::writeDescriptor(PDFDocument &doc, const std::string &name) const {
    std::set<int> glyphs;
    std::map<int, int> characters;
    for (const auto &g : used) {
        glyphs.insert(g.first);
        if (g.second.size() == 1) characters.emplace(g.second[0], g.first);
    }
    std::vector<unsigned char> subset = TrueTypeSubset::build(font, glyphs, characters);
    int fileId = doc.newObject();
    doc.setStream(fileId, "/Length1 " + number((double)subset.size()),
                  std::string(subset.begin(), subset.end()));
    const int *b = font.bbox();
    int flags = kSymbolic | (font.isFixedPitch() ? kFixedPitch : 0) |
                (font.italicAngle() != 0 ? kItalic : 0);
    int id = doc.newObject();
    doc.setDictionary(
        id, "/Type/FontDescriptor/FontName/" + name + "/Flags " + number(flags) + "/FontBBox[" +
                number(scaled(b[0])) + " " + number(scaled(b[1])) + " " + number(scaled(b[2])) +
                " " + number(scaled(b[3])) + "]/Ascent " + number(scaled(font.ascent())) +
                "/Descent " + number(scaled(font.descent())) + "/CapHeight " +
                number(scaled(font.capHeight())) + "/ItalicAngle " + number(font.italicAngle()) +
                "/StemV 0/FontFile2 " + PDFDocument::reference(fileId));
    return id;
}

void PDFTTFFont::write(PDFDocument &doc) {
    std::string name = baseName();
    int descriptor = writeDescriptor(doc, name);
    int descendant = doc.newObject();
    doc.setDictionary(descendant, "/Type/Font/Subtype/CIDFontType2/BaseFont/" + name +
                                      "/FontDescriptor " + PDFDocument::reference(descriptor) +
                                      "/CIDSystemInfo<</Registry (Adobe)/Ordering (Identity)"
                                      "/Supplement 0>>/CIDToGIDMap/Identity" +
                                      widths());
    int unicode = doc.newObject();
    doc.setStream(unicode, "", toUnicode(used));
    doc.setDictionary(id, "/Type/Font/Subtype/Type0/BaseFont/" + name +
                              "/Encoding/Identity-H/DescendantFonts[" +
                              PDFDocument::reference(descendant) + "]/ToUnicode " +
                              PDFDocument::reference(unicode));
}
