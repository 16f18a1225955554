#include "tests/host/simhost/SimValue.h"

#include "tests/host/simhost/SimHost.h"

namespace simhost {

Ref Ref::adopt(SimHost *host, RefHeader *ref) {
    Ref r;
    r.host = ref ? host : nullptr;
    r.ref = ref;
    return r;
}

Ref Ref::retain(SimHost *host, RefHeader *ref) {
    if (ref) host->lock(ref);
    return adopt(host, ref);
}

Ref::Ref(const Ref &other) : host(other.host), ref(other.ref) {
    if (ref) host->lock(ref);
}

Ref &Ref::operator=(const Ref &other) {
    if (this != &other) {
        Ref copy(other);
        *this = std::move(copy);
    }
    return *this;
}

Ref::Ref(Ref &&other) noexcept : host(other.host), ref(other.ref) {
    other.host = nullptr;
    other.ref = nullptr;
}

Ref &Ref::operator=(Ref &&other) noexcept {
    if (this != &other) {
        reset();
        host = other.host;
        ref = other.ref;
        other.host = nullptr;
        other.ref = nullptr;
    }
    return *this;
}

Ref::~Ref() {
    reset();
}

void Ref::reset() {
    RefHeader *r = ref;
    SimHost *h = host;
    ref = nullptr;
    host = nullptr;
    if (r) h->unlock(r);
}

// Integers, booleans and colours all travel in the integer word.
static Value wordValue(Value::Type type, int64_t word) {
    Value x;
    x.type = type;
    x.i = word;
    return x;
}

Value Value::integer(int64_t v) {
    return wordValue(Integer, v);
}

Value Value::real(double v) {
    Value x;
    x.type = Double;
    x.d = v;
    return x;
}

Value Value::boolean(bool v) {
    return wordValue(Boolean, v);
}

Value Value::color(uint32_t v) {
    return wordValue(Color, v);
}

Value Value::string(const std::string &v) {
    Value x;
    x.type = String;
    x.s = v;
    return x;
}

Value Value::object(Ref r) {
    Value x;
    x.type = Object;
    x.ref = std::move(r);
    return x;
}

SimObject *Value::asObject() const {
    RefHeader *r = ref.get();
    return r && r->kind == RefKind::Object ? reinterpret_cast<SimObject *>(r) : nullptr;
}

SimArray *Value::asArray() const {
    RefHeader *r = ref.get();
    return r && r->kind == RefKind::Array ? reinterpret_cast<SimArray *>(r) : nullptr;
}

}  // namespace simhost
