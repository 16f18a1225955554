#pragma once

#include "api/CTypes.h"
#include "foundation/ArrayViews.h"

class DrawArea;
class TTFText;
class ArrayMath;

// The opaque handles of the flat interface are the engine objects themselves.
namespace vistrel_api {

inline DrawArea *D(CDrawArea *h) {
    return reinterpret_cast<DrawArea *>(h);
}
inline CDrawArea *H(DrawArea *d) {
    return reinterpret_cast<CDrawArea *>(d);
}
inline TTFText *T(CTTFText *h) {
    return reinterpret_cast<TTFText *>(h);
}
inline CTTFText *H(TTFText *t) {
    return reinterpret_cast<CTTFText *>(t);
}
inline ArrayMath *A(CArrayMath *h) {
    return reinterpret_cast<ArrayMath *>(h);
}
inline CArrayMath *H(ArrayMath *a) {
    return reinterpret_cast<CArrayMath *>(a);
}

// Writes a returned view through the two out-parameters, pointer first.
template <class View, class T>
void putView(View v, const T **data, int *len) {
    if (data) *data = v.data;
    if (len) *len = v.len;
}

}  // namespace vistrel_api
