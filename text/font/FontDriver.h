#pragma once

#include "foundation/Mutex.h"

class FontFace;

// Owns every open font file.  One driver serves the process; it is made on first
// use and guarded by one mutex, which also covers its faces and glyph caches.
class FontDriver {
public:
    virtual ~FontDriver() {}

    // A face for a font specification, or null.  Sizes are points; a width of 0
    // is the height.
    virtual FontFace *openFace(const char *fontSpec, int style, double width, double height) = 0;
    // The same for a file name, without reading a specification.
    virtual FontFace *openFaceAt(const char *fileName, int collectionIndex, int style, double width,
                                 double height) = 0;
    // Runs the lookup writing what happens into report (at most reportLength bytes,
    // terminated).  Returns 1 when the lookup ran.
    virtual int testFont(const char *fontSpec, int collectionIndex, char *report, int reportLength,
                         double width, double height) = 0;

    // Whether callers must lock the mutex themselves.
    static bool isSync() { return false; }

    static qlx::Mutex &getMutex();
    // The process driver, made on first use; the caller holds the mutex.
    static FontDriver *getDriver();
    // Destroys the process driver (done at exit); takes the mutex.
    static void shutdown();
};
