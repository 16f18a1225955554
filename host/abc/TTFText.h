#pragma once

#include "api/CTTFText.h"
#include "host/abc/VSObject.h"

namespace abc {

// A laid-out text; the wrapper owns the engine text.
class TTFText : public VSObject {
public:
    explicit TTFText(CTTFText *handle) : handle(handle) {}
    ~TTFText() override { CTTFText_destroy(handle); }
    TTFText(const TTFText &) = delete;
    TTFText &operator=(const TTFText &) = delete;

    // A wrapper that owns t; null for null.
    static TTFText *adopt(CTTFText *t) { return t ? new TTFText(t) : nullptr; }

    CTTFText *getHandle() const { return handle; }
    int getWidth() { return CTTFText_getWidth(handle); }
    int getHeight() { return CTTFText_getHeight(handle); }
    int getBaseline() { return CTTFText_getBaseline(handle); }
    int getLineHeight() { return CTTFText_getLineHeight(handle); }
    int getLineDistance() { return CTTFText_getLineDistance(handle); }
    int getAscent() { return CTTFText_getAscent(handle); }
    int getDescent() { return CTTFText_getDescent(handle); }
    bool layout(int startX, int maxWidth, int maxLines) {
        return CTTFText_layout(handle, startX, maxWidth, maxLines);
    }
    void draw(int x, int y, int color, int alignment) {
        CTTFText_draw(handle, x, y, color, alignment);
    }

private:
    CTTFText *handle;
};

}  // namespace abc
