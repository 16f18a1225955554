// Random font specifications through name reading, the driver's lookup (with
// lists, stand-ins, styles and collection indices) and the test report.
#include <cstdint>
#include <string>

#include "text/font/FontDriver.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"
#include "text/font/FontLock.h"
#include "text/font/FontName.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 2) return 0;
    double height = data[0] % 40;
    int ch = 32 + data[1];
    std::string spec((const char *)data + 2, size - 2);
    spec = spec.c_str();
    FontName::parse(spec.c_str());
    // Paths stay inside the search list: a device file is no font to wait for.
    for (char &c : spec)
        if (c == '/' || c == '\\') c = '_';
    FontLock lock;
    FontDriver *driver = FontDriver::getDriver();
    if (FontFace *face = driver->openFace(spec.c_str(), data[0] & 6, 0, height)) {
        FontGlyph *g = face->getGlyph(ch, data[1] & 7);
        if (g) g->release();
        FontFace *big = face->scaled(1 + (data[0] & 3) * 0.37);
        if (FontGlyph *missing = big ? big->getMissingGlyph(ch, 1) : nullptr) missing->release();
    }
    char report[256];
    driver->testFont(spec.c_str(), data[1] & 3, report, sizeof(report), 0, height);
    return 0;
}
