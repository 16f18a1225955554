#include "api/CTTFText.h"

#include "api/Handles.h"
#include "text/layout/TTFText.h"

using vistrel_api::H;
using vistrel_api::T;

void CTTFText_destroy(CTTFText *t) {
    if (t) T(t)->destroy();
}
int CTTFText_getWidth(CTTFText *t) {
    return t ? T(t)->getWidth() : 0;
}
int CTTFText_getHeight(CTTFText *t) {
    return t ? T(t)->getHeight() : 0;
}
int CTTFText_getBaseline(CTTFText *t) {
    return t ? T(t)->getBaseline() : 0;
}
int CTTFText_getLineHeight(CTTFText *t) {
    return t ? T(t)->getLineHeight() : 0;
}
int CTTFText_getLineDistance(CTTFText *t) {
    return t ? T(t)->getLineDistance() : 0;
}
int CTTFText_getAscent(CTTFText *t) {
    return t ? T(t)->getAscent() : 0;
}
int CTTFText_getDescent(CTTFText *t) {
    return t ? T(t)->getDescent() : 0;
}
bool CTTFText_layout(CTTFText *t, int startX, int maxWidth, int maxLines) {
    return t && T(t)->layout(startX, maxWidth, maxLines);
}
CTTFText *CTTFText_nextLine(CTTFText *t) {
    return t ? H(T(t)->nextLine()) : nullptr;
}
void CTTFText_draw(CTTFText *t, int x, int y, int color, int alignment) {
    if (t) T(t)->draw(x, y, color, alignment);
}
