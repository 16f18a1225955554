#pragma once

// Reads the type and pixel size of an encoded image from its first bytes,
// without decoding it.
class ImageSniffer {
public:
    // An image type number (PNG, GIF, JPG, BMP), -1 for anything else.
    static int getType(int length, const unsigned char *data);
    // False, with (0, 0), when the header can't be read.  Sizes are as stored: a
    // top-down BMP gives a negative height.
    static bool getSize(int length, const unsigned char *data, int *width, int *height);
    // The media type of an image type number (kPNG ... kPDF), "image/unknown" for others.
    static const char *getMediaType(int imageType);

private:
    static bool jpegSize(int length, const unsigned char *data, int *width, int *height);
};
