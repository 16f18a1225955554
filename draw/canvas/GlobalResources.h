#pragma once

#include <string>

class DrawArea;

// The process-wide named data blocks, named canvases and settings, all behind
// one mutex of their own.  Settings are read once and cached for the process.
class GlobalResources {
public:
    // Null data removes the entry.
    static void setData(const char *id, const char *data, int length);
    // A malloc'ed copy the caller frees, or null.
    static char *copyData(const char *id, int *length);
    // Retains the new canvas before releasing the old one; null removes.
    static void setDrawArea(const char *id, DrawArea *d);
    // The canvas as it stands, valid only until it is replaced: callers that
    // may race with a replacement use acquireDrawArea.
    static DrawArea *getDrawArea(const char *id);
    // The canvas with a reference the caller drops with destroy(), or null.
    static DrawArea *acquireDrawArea(const char *id);
    // The canvas's PNG encoding as a malloc'ed copy the caller frees, or null.
    // Shared canvases are encoded one at a time, so that threads reading the
    // same one don't replay it together.
    static char *encodeDrawArea(const char *id, int *length);

    // Null value removes the setting.
    static void setSetting(const char *name, const char *value);
    static bool getSetting(const char *name, std::string *value);

    static int getPixelLimit();
    static int getFileLimit();
    static int getGlyphCacheLimit();
    static int getDefaultTextAA();

    // A setting text as a whole number in the C locale, or defaultValue when absent.
    static int parseLimit(const char *text, int defaultValue);
};
