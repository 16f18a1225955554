#include "host/sdk/HostFunctions.h"

namespace {

// The host hands out one element function per array; null when it has none.
template <class Fn>
Fn elementFunction(void *(*procGetter)(REALarray), REALarray array) {
    return array ? reinterpret_cast<Fn>(procGetter(array)) : nullptr;
}

template <class T>
T getElement(void *(*procGetter)(REALarray), REALarray array, RBInteger index) {
    auto f = elementFunction<T (*)(REALarray, RBInteger)>(procGetter, array);
    return f ? f(array, index) : T();
}

}  // namespace

RBColor REALGetArrayValueColor(REALarray array, RBInteger index) {
    return getElement<RBColor>(PluginColorArrayGetProc, array, index);
}
double REALGetArrayValueDouble(REALarray array, RBInteger index) {
    return getElement<double>(PluginDoubleArrayGetProc, array, index);
}
RBInteger REALGetArrayValueInteger(REALarray array, RBInteger index) {
    return getElement<RBInteger>(PluginIntegerArrayGetProc, array, index);
}
REALobject REALGetArrayValueObject(REALarray array, RBInteger index) {
    return getElement<REALobject>(PluginObjectArrayGetProc, array, index);
}
REALstring REALGetArrayValueString(REALarray array, RBInteger index) {
    return getElement<REALstring>(PluginStringArrayGetProc, array, index);
}

// The setter takes the value before the index.
void REALSetArrayValueDouble(REALarray array, RBInteger index, double value) {
    auto f =
        elementFunction<void (*)(REALarray, double, RBInteger)>(PluginDoubleArraySetProc, array);
    if (f) f(array, value, index);
}
void REALSetArrayValueInteger(REALarray array, RBInteger index, RBInteger value) {
    auto f = elementFunction<void (*)(REALarray, RBInteger, RBInteger)>(PluginIntegerArraySetProc,
                                                                        array);
    if (f) f(array, value, index);
}

void REALInsertArrayValueDouble(REALarray array, RBInteger index, double value) {
    auto f =
        elementFunction<void (*)(REALarray, RBInteger, double)>(PluginDoubleArrayInsertProc, array);
    if (f) f(array, index, value);
}
void REALInsertArrayValueObject(REALarray array, RBInteger index, REALobject value) {
    auto f = elementFunction<void (*)(REALarray, RBInteger, REALobject)>(
        PluginObjectArrayInsertProc, array);
    if (f) f(array, index, value);
}

DoubleElementGetter doubleElementGetter(REALarray array) {
    return elementFunction<DoubleElementGetter>(PluginDoubleArrayGetProc, array);
}
IntegerElementGetter integerElementGetter(REALarray array) {
    return elementFunction<IntegerElementGetter>(PluginIntegerArrayGetProc, array);
}
