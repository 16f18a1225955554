#include "host/abc/ArrayMath.h"

namespace abc {

ArrayMath *ArrayMath::create(DoubleArray a) {
    CArrayMath *m = CArrayMath_create(a.data, a.len);
    return m ? new ArrayMath(m) : nullptr;
}

}  // namespace abc
