#pragma once

class PDFDocument;

// Pixels as an image object of a PDF file: the colours in DeviceRGB and, when
// some pixel isn't opaque, their opacity as a soft mask in DeviceGray.
class PDFImageWriter {
public:
    // The image object's id.
    static int write(PDFDocument &doc, const int *pixels, int width, int height);
};
