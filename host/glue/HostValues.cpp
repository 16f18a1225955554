#include "host/glue/HostValues.h"

#include <climits>
#include <cstring>
#include <new>

#include "host/glue/ScaleFactor.h"
#include "host/sdk/HostFunctions.h"

namespace {

// Room for a copy of n items: more than the address space holds is a failed
// allocation like any other.
template <class T>
void sizeFor(std::vector<T> &v, RBInteger n) {
    if ((uint64_t)n > v.max_size()) throw std::bad_alloc();
    v.resize(n);
}

}  // namespace

RBText::RBText(REALstring s) {
    REALstringData data;
    if (!s || !REALGetStringData(s, kREALTextEncodingUTF8, &data)) return;
    if (data.data) text.assign(static_cast<const char *>(data.data), data.length);
    REALDisposeStringData(&data);
}

RBInteger hostArrayCount(REALarray a) {
    RBInteger upper = a ? REALGetArrayUBound(a) : -1;
    return upper < 0 ? 0 : upper + 1;
}

int viewLength(size_t count) {
    return count > (size_t)INT_MAX ? INT_MAX : (int)count;
}

// The element function is asked for once per array, not once per item; a host
// that has none leaves the items at 0.
RBDoubleArray::RBDoubleArray(REALarray a, bool pixels) {
    RBInteger n = hostArrayCount(a);
    sizeFor(values, n);
    DoubleElementGetter get = doubleElementGetter(a);
    if (!get) return;
    for (RBInteger i = 0; i < n; ++i) values[i] = get(a, i);
    if (pixels)
        for (double &v : values) v = scalePixels(v);
}

std::vector<double> readDoublesByItem(REALarray a) {
    std::vector<double> values;
    sizeFor(values, hostArrayCount(a));
    for (size_t i = 0; i < values.size(); ++i) values[i] = REALGetArrayValueDouble(a, i);
    return values;
}

RBIntArray::RBIntArray(REALarray a, bool pixels) {
    RBInteger n = hostArrayCount(a);
    sizeFor(values, n);
    IntegerElementGetter get = integerElementGetter(a);
    if (!get) return;
    for (RBInteger i = 0; i < n; ++i) {
        RBInteger v = get(a, i);
        values[i] = pixels ? scalePixels(v) : (int)v;
    }
}

RBColorArray::RBColorArray(REALarray a) {
    sizeFor(values, hostArrayCount(a));
    for (size_t i = 0; i < values.size(); ++i) values[i] = (int)REALGetArrayValueColor(a, i);
}

RBStringArray::RBStringArray(REALarray a) {
    RBInteger n = hostArrayCount(a);
    texts.reserve(n);
    for (RBInteger i = 0; i < n; ++i) {
        REALstring s = REALGetArrayValueString(a, i);
        texts.push_back(RBText(s).str());
        if (s) REALUnlockString(s);
    }
    for (const std::string &t : texts) pointers.push_back(t.c_str());
}

abc::MemBlock memoryBlockBytes(REALobject mb) {
    if (!mb) return {0, nullptr};
    RBInteger size = REALMemoryBlockGetSize(mb);
    const char *data = static_cast<const char *>(REALMemoryBlockGetPtr(mb));
    if (!data || size <= 0) return {0, nullptr};
    return {size > INT_MAX ? INT_MAX : (int)size, data};
}

abc::MemBlock resourceBytes(REALobject mb) {
    abc::MemBlock bytes = memoryBlockBytes(mb);
    if (mb && !bytes.data) bytes = {0, ""};
    return bytes;
}

REALstring newHostString(const char *text) {
    if (!text) text = "";
    return REALBuildStringWithEncoding(text, (int)strlen(text), kREALTextEncodingUTF8);
}

REALarray newHostDoubleArray(abc::DoubleArray a) {
    REALarray array = REALCreateArray(kTypeFloat64, a.len - 1);
    for (int i = 0; array && i < a.len; ++i) REALSetArrayValueDouble(array, i, a.data[i]);
    return array;
}

REALarray newHostIntArray(abc::IntArray a) {
    REALarray array = REALCreateArray(kTypeInteger, a.len - 1);
    for (int i = 0; array && i < a.len; ++i) REALSetArrayValueInteger(array, i, a.data[i]);
    return array;
}

REALobject newHostMemoryBlock(abc::MemBlock bytes) {
    REALobject mb = REALNewMemoryBlock(bytes.len > 0 ? bytes.len : 0);
    void *to = mb ? REALMemoryBlockGetPtr(mb) : nullptr;
    if (to && bytes.len > 0) memcpy(to, bytes.data, bytes.len);
    return mb;
}
