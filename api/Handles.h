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

// E(handle) gives the engine object of a handle of the class C<Engine>, and
// H(object) the handle of an engine object; a handle of a derived class
// becomes its base's through the conversion functions, since the bases of the
// engine's classes are virtual.
#define VISTREL_HANDLE_OF(Engine)                \
    inline Engine *E(C##Engine *h) {             \
        return reinterpret_cast<Engine *>(h);    \
    }                                            \
    inline C##Engine *H(Engine *e) {             \
        return reinterpret_cast<C##Engine *>(e); \
    }

// Writes a returned view through the two out-parameters, pointer first.
template <class View, class T>
void putView(View v, const T **data, int *len) {
    if (data) *data = v.data;
    if (len) *len = v.len;
}

}  // namespace vistrel_api
