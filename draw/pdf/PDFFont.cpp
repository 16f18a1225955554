#include "draw/pdf/PDFFont.h"

#include "draw/pdf/PDFDocument.h"
#include "draw/pdf/PDFTTFFont.h"
#include "draw/pdf/PDFUnknownFont.h"
#include "draw/vector/NumberText.h"

std::string PDFFont::keyOf(const GlyphFont &font) {
    // An embedded font serves every style it is drawn in; a standard font has
    // one per style.
    std::string key = font.filePath ? font.filePath : "";
    key += '|';
    NumberText::appendInt(key, font.faceIndex);
    key += font.bold ? "|b" : "|";
    key += font.italic ? "i" : "";
    return key;
}

PDFFont *PDFFont::create(PDFDocument &doc, const GlyphFont &font) {
    int id = doc.newObject();
    PDFTTFFont *embedded = new PDFTTFFont(
        id, PDFFontFiles::load(font.filePath ? font.filePath : ""), font.faceIndex, font);
    if (embedded->usable()) return embedded;
    delete embedded;
    return new PDFUnknownFont(id, font);
}
