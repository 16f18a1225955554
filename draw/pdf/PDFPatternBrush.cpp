#include "draw/pdf/PDFPatternBrush.h"

#include "draw/pdf/PDFDocument.h"
#include "draw/pdf/PDFImageWriter.h"
#include "draw/vector/NumberText.h"

void PDFPatternBrush::write(PDFDocument &doc) {
    int w = paint.tileWidth, h = paint.tileHeight;
    int image = PDFImageWriter::write(doc, paint.pixels.data(), w, h);
    std::string sw, sh;
    NumberText::appendInt(sw, w);
    NumberText::appendInt(sh, h);
    // Pattern space runs down the page like the canvas: the image's top row at 0.
    std::string content = "q " + sw + " 0 0 -" + sh + " 0 " + sh + " cm /X0 Do Q";
    colorId = doc.newObject();
    Affine place = paint.transform.after(Affine::translation(paint.x1, paint.y1));
    doc.setStream(colorId,
                  "/PatternType 1/PaintType 1/TilingType 2/BBox[0 0 " + sw + " " + sh + "]/XStep " +
                      sw + "/YStep " + sh +
                      "/Resources<</ProcSet[/PDF /Text /ImageB /ImageC]/XObject<</X0 " +
                      PDFDocument::reference(image) + ">>>>" + matrixEntry(place),
                  content);
}
