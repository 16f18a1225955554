#pragma once

#include "host/glue/ClassRegistry.h"

// The C shape of a glue function as text, so that a declaration can be checked
// against the function behind it: 'v' nothing, 'i' Integer, 'd' Double,
// 'b' Boolean, 'c' Color, 's' String, 'o' object, 'a' array.
template <class T>
struct GlueCode;
template <>
struct GlueCode<void> {
    static constexpr char value = 'v';
};
template <>
struct GlueCode<RBInteger> {
    static constexpr char value = 'i';
};
template <>
struct GlueCode<double> {
    static constexpr char value = 'd';
};
template <>
struct GlueCode<RBBoolean> {
    static constexpr char value = 'b';
};
template <>
struct GlueCode<RBColor> {
    static constexpr char value = 'c';
};
template <>
struct GlueCode<REALstring> {
    static constexpr char value = 's';
};
template <>
struct GlueCode<REALobject> {
    static constexpr char value = 'o';
};
template <>
struct GlueCode<REALarray> {
    static constexpr char value = 'a';
};

template <class R, class... A>
struct GlueSignatureText {
    static constexpr char value[] = {GlueCode<R>::value, ':', GlueCode<A>::value..., 0};
};

template <class R, class... A>
const char *glueSignature(R (*)(A...)) {
    return GlueSignatureText<R, A...>::value;
}

// An entry of a method table; the signature comes from the function itself.
template <class R, class... A>
MethodEntry method(const char *declaration, R (*function)(A...), double minHostVersion = 0) {
    return {declaration, reinterpret_cast<REALproc>(function), glueSignature(function),
            REALTargetAllThree, minHostVersion};
}

// A read-only property with a custom getter.
template <class R, class... A>
PropertyEntry readOnlyProperty(const char *name, const char *type, R (*getter)(A...)) {
    return {name,
            type,
            reinterpret_cast<REALproc>(getter),
            nullptr,
            glueSignature(getter),
            REALTargetAllThree};
}

// A property with a custom getter and setter.
template <class R, class... A, class S, class... B>
PropertyEntry property(const char *name, const char *type, R (*getter)(A...), S (*setter)(B...)) {
    return {name,
            type,
            reinterpret_cast<REALproc>(getter),
            reinterpret_cast<REALproc>(setter),
            glueSignature(getter),
            REALTargetAllThree};
}
