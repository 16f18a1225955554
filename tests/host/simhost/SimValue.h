#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/host/simhost/SimObjects.h"

namespace simhost {

class SimHost;

// A counted reference the test holds on a host object, array or string: one
// lock for as long as it lives.
class Ref {
public:
    Ref() = default;
    // Takes over a reference the caller already holds.
    static Ref adopt(SimHost *host, RefHeader *ref);
    // Adds a reference of its own.
    static Ref retain(SimHost *host, RefHeader *ref);
    Ref(const Ref &other);
    Ref &operator=(const Ref &other);
    Ref(Ref &&other) noexcept;
    Ref &operator=(Ref &&other) noexcept;
    ~Ref();

    RefHeader *get() const { return ref; }
    explicit operator bool() const { return ref != nullptr; }
    void reset();

private:
    SimHost *host = nullptr;
    RefHeader *ref = nullptr;
};

// A value of the host language, as a test passes it or gets it back.
struct Value {
    enum Type { Nil, Integer, Double, Boolean, Color, String, Object, Array };
    Type type = Nil;
    int64_t i = 0;
    double d = 0;
    std::string s;
    Ref ref;

    static Value integer(int64_t v);
    static Value real(double v);
    static Value boolean(bool v);
    static Value color(uint32_t v);
    static Value string(const std::string &v);
    static Value object(Ref r);

    bool isNil() const { return type == Nil || ((type == Object || type == Array) && !ref); }
    SimObject *asObject() const;
    SimArray *asArray() const;
};

inline Value I(int64_t v) {
    return Value::integer(v);
}
inline Value D(double v) {
    return Value::real(v);
}
inline Value B(bool v) {
    return Value::boolean(v);
}
inline Value C(uint32_t v) {
    return Value::color(v);
}
inline Value S(const std::string &v) {
    return Value::string(v);
}

}  // namespace simhost
