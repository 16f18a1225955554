// Calls into the plug-in: overloads chosen as the host's compiler would, the
// defaults of the declaration filled in, and the call made through libffi with
// the C types of the interface.
#include <ffi.h>

#include <cstring>
#include <list>

#include "tests/host/simhost/SimHost.h"

namespace simhost {

namespace {

bool isObjectType(const XojoType &t) {
    static const char *const plain[] = {"integer", "int64",  "uinteger", "uint64", "int32",
                                        "uint32",  "int16",  "uint16",   "int8",   "uint8",
                                        "double",  "single", "boolean",  "color",  "string"};
    if (t.isArray) return false;
    for (const char *p : plain)
        if (t.name == p) return false;
    return true;
}

ffi_type *ffiTypeOf(const XojoType &t) {
    if (t.isArray || isObjectType(t) || t.name == "string") return &ffi_type_pointer;
    static const std::pair<const char *, ffi_type *> kTypes[] = {
        {"integer", &ffi_type_sint64}, {"int64", &ffi_type_sint64},  {"uinteger", &ffi_type_uint64},
        {"uint64", &ffi_type_uint64},  {"int32", &ffi_type_sint32},  {"uint32", &ffi_type_uint32},
        {"int16", &ffi_type_sint16},   {"uint16", &ffi_type_uint16}, {"int8", &ffi_type_sint8},
        {"uint8", &ffi_type_uint8},    {"double", &ffi_type_double}, {"single", &ffi_type_float},
        {"boolean", &ffi_type_sint8},  {"color", &ffi_type_uint32},
    };
    for (const auto &k : kTypes)
        if (t.name == k.first) return k.second;
    return &ffi_type_pointer;
}

int arrayElementType(const std::string &name) {
    if (name == "double") return kTypeFloat64;
    if (name == "string") return kTypeString;
    if (name == "color") return kTypeColor;
    if (name == "boolean") return kTypeBoolean;
    if (name == "integer" || name == "int64") return kTypeInteger;
    return kTypeObject;
}

// How well a value fits a parameter: 2 exactly, 1 by conversion, -1 not at all.
int fit(SimHost &host, const XojoType &t, const Value &v) {
    if (t.isArray) {
        if (v.type == Value::Nil) return 1;
        return v.type == Value::Array && v.asArray()->elementType == arrayElementType(t.name) ? 2
                                                                                              : -1;
    }
    if (isObjectType(t)) {
        if (v.type == Value::Nil) return 1;
        if (v.type != Value::Object) return -1;
        if (t.name == "variant" || t.name == "object") return 1;
        SimClass *want = host.findClass(t.name);
        return want && v.asObject() && v.asObject()->cls->isA(want) ? 2 : -1;
    }
    switch (v.type) {
        case Value::Integer:
            return t.name == "double" || t.name == "single"                         ? 1
                   : t.name == "boolean" || t.name == "color" || t.name == "string" ? -1
                                                                                    : 2;
        case Value::Double:
            return t.name == "double" || t.name == "single" ? 2 : -1;
        case Value::Boolean:
            return t.name == "boolean" ? 2 : -1;
        case Value::Color:
            return t.name == "color" ? 2 : -1;
        case Value::String:
            return t.name == "string" ? 2 : -1;
        default:
            return -1;
    }
}

Value valueOfLiteral(const Literal &l, const XojoType &t) {
    switch (l.kind) {
        case Literal::Integer:
            return t.name == "double" || t.name == "single" ? D((double)l.i) : I(l.i);
        case Literal::Double:
            return D(l.d);
        case Literal::Boolean:
            return B(l.i != 0);
        case Literal::Color:
            return C((uint32_t)l.i);
        case Literal::String:
            return S(l.s);
        case Literal::Nil:
            break;
    }
    return Value();
}

// A host zero of a type: 0, 0.0, false, black, "", nil.
Value zeroOf(const XojoType &t) {
    if (t.isArray || isObjectType(t)) return Value();
    if (t.name == "double" || t.name == "single") return D(0);
    if (t.name == "boolean") return B(false);
    if (t.name == "color") return C(0);
    if (t.name == "string") return S("");
    return I(0);
}

// The C value of one argument, with the strings made for the call.
union Slot {
    int64_t i64;
    uint64_t u64;
    int32_t i32;
    uint32_t u32;
    int16_t i16;
    int8_t i8;
    double d;
    float f;
    void *p;
};

}  // namespace

struct SimHost::Candidate {
    const SimMethod *method;
    int score;
};

std::vector<const SimMethod *> SimHost::methodsNamed(const SimClass *cls, const std::string &name,
                                                     bool shared) const {
    std::vector<const SimMethod *> out;
    std::string want = lowerCase(name);
    for (const SimClass *c = cls; c; c = c->super) {
        for (const SimMethod &m : shared ? c->sharedMethods : c->methods)
            if (lowerCase(m.decl.name) == want) out.push_back(&m);
        // Constructors are not inherited past a class that declares its own.
        if (want == "constructor" && !out.empty()) break;
    }
    return out;
}

CallResult SimHost::callBest(SimObject *self, const std::vector<const SimMethod *> &methods,
                             std::vector<Value> &args, const std::string &what) {
    std::vector<Candidate> fits;
    for (const SimMethod *m : methods) {
        const auto &params = m->decl.params;
        if (args.size() > params.size()) continue;
        int score = 0;
        bool ok = true;
        for (size_t i = 0; i < params.size() && ok; ++i) {
            if (i >= args.size()) {
                ok = params[i].hasDefault;
                continue;
            }
            int f = fit(*this, params[i].type, args[i]);
            ok = f > 0;
            score += f;
        }
        if (ok) fits.push_back({m, score});
    }
    CallResult none;
    if (fits.empty()) {
        noteMisuse("no declaration of " + what + " takes these arguments");
        return none;
    }
    const Candidate *best = &fits[0];
    int ties = 0;
    for (const Candidate &c : fits) {
        if (c.score > best->score)
            best = &c, ties = 0;
        else if (&c != best && c.score == best->score)
            ++ties;
    }
    if (ties) noteMisuse("the call of " + what + " is ambiguous");
    return invoke(self, *best->method, args);
}

CallResult SimHost::invoke(SimObject *self, const SimMethod &method, std::vector<Value> &args) {
    const Declaration &d = method.decl;
    std::vector<Value> values = args;
    for (size_t i = values.size(); i < d.params.size(); ++i) {
        Literal l;
        parseLiteral(d.params[i].defaultText, l);
        values.push_back(valueOfLiteral(l, d.params[i].type));
    }
    size_t n = d.params.size() + (self ? 1 : 0);
    std::vector<ffi_type *> types(n);
    std::vector<Slot> slots(n);
    std::vector<void *> pointers(n);
    std::list<Slot> byRefTargets;
    std::vector<SimString *> made;
    size_t k = 0;
    if (self) {
        types[k] = &ffi_type_pointer;
        slots[k].p = self;
        ++k;
    }
    for (size_t i = 0; i < d.params.size(); ++i, ++k) {
        const XojoType &t = d.params[i].type;
        const Value &v = values[i];
        types[k] = ffiTypeOf(t);
        Slot &s = slots[k];
        s.u64 = 0;
        if (t.name == "string" && !t.isArray) {
            made.push_back(newString(v.s, kREALTextEncodingUTF8));
            s.p = made.back();
        } else if (types[k] == &ffi_type_pointer) {
            s.p = v.ref.get();
        } else if (types[k] == &ffi_type_double) {
            s.d = v.type == Value::Double ? v.d : (double)v.i;
        } else if (types[k] == &ffi_type_float) {
            s.f = (float)(v.type == Value::Double ? v.d : (double)v.i);
        } else if (types[k] == &ffi_type_sint8 || types[k] == &ffi_type_uint8) {
            s.i8 = (int8_t)v.i;
        } else if (types[k] == &ffi_type_sint16 || types[k] == &ffi_type_uint16) {
            s.i16 = (int16_t)v.i;
        } else if (types[k] == &ffi_type_sint32 || types[k] == &ffi_type_uint32) {
            s.u32 = (uint32_t)v.i;
        } else {
            s.i64 = v.i;
        }
        if (d.params[i].byRef) {
            byRefTargets.push_back(s);
            s.p = &byRefTargets.back();
            types[k] = &ffi_type_pointer;
        }
        pointers[k] = &slots[k];
    }
    if (self) pointers[0] = &slots[0];
    ffi_type *resultType = d.hasResult ? ffiTypeOf(d.result) : &ffi_type_void;
    ffi_cif cif;
    CallResult result;
    if (ffi_prep_cif(&cif, FFI_DEFAULT_ABI, (unsigned)n, resultType, types.data()) != FFI_OK) {
        noteMisuse("libffi refused " + method.text);
        return result;
    }
    union {
        ffi_arg word;
        int64_t i64;
        double d;
        float f;
        void *p;
    } ret;
    memset(&ret, 0, sizeof ret);
    ffi_call(&cif, method.function, &ret, pointers.data());
    for (SimString *s : made) unlock(&s->header);
    if (d.hasResult) {
        const XojoType &t = d.result;
        if (t.isArray) {
            result.value.type = Value::Array;
            result.value.ref = Ref::adopt(this, static_cast<RefHeader *>(ret.p));
        } else if (t.name == "string") {
            auto *s = static_cast<SimString *>(ret.p);
            result.value = S(s ? s->bytes : "");
            if (s) unlock(&s->header);
        } else if (isObjectType(t)) {
            result.value.type = Value::Object;
            result.value.ref = Ref::adopt(this, static_cast<RefHeader *>(ret.p));
        } else if (resultType == &ffi_type_double) {
            result.value = D(ret.d);
        } else if (resultType == &ffi_type_float) {
            result.value = D(ret.f);
        } else if (t.name == "boolean") {
            result.value = B((int8_t)ret.word != 0);
        } else if (t.name == "color") {
            result.value = C((uint32_t)ret.word);
        } else if (resultType == &ffi_type_sint32) {
            result.value = I((int32_t)ret.word);
        } else {
            result.value = I(ret.i64);
        }
    }
    return takeRaised(std::move(result));
}

CallResult SimHost::create(const std::string &className, std::vector<Value> args) {
    SimClass *cls = findClass(className);
    CallResult result;
    if (!cls) {
        noteMisuse("New of an unknown class " + className);
        return result;
    }
    std::vector<const SimMethod *> ctors = methodsNamed(cls, "constructor", false);
    SimObject *o = newObject(cls);
    Value object = Value::object(Ref::adopt(this, &o->header));
    if (!ctors.empty() || !args.empty()) {
        result = callBest(o, ctors, args, className + ".Constructor");
        if (result.raised) return result;
    }
    result = takeRaised(std::move(result));
    if (!result.raised) result.value = object;
    return result;
}

CallResult SimHost::call(const Value &self, const std::string &name, std::vector<Value> args) {
    SimObject *o = self.asObject();
    if (!o) {
        CallResult r;
        r.raised = true;
        r.exception.className = "NilObjectException";
        return r;
    }
    return callBest(o, methodsNamed(o->cls, name, false), args, o->cls->name + "." + name);
}

CallResult SimHost::callShared(const std::string &className, const std::string &name,
                               std::vector<Value> args) {
    SimClass *cls = findClass(className);
    if (!cls) return CallResult();
    return callBest(nullptr, methodsNamed(cls, name, true), args, className + "." + name);
}

CallResult SimHost::callDeclared(const Value &self, const std::string &declaration,
                                 std::vector<Value> args) {
    SimObject *o = self.asObject();
    for (const SimClass *c = o ? o->cls : nullptr; c; c = c->super)
        for (const SimMethod &m : c->methods)
            if (m.text == declaration) return invoke(o, m, args);
    noteMisuse("no declaration " + declaration);
    return CallResult();
}

CallResult SimHost::callWithZeros(const Value &self, const SimMethod &method) {
    std::vector<Value> args;
    for (const Param &p : method.decl.params)
        if (!p.hasDefault) args.push_back(zeroOf(p.type));
    return invoke(self.asObject(), method, args);
}

CallResult SimHost::callProperty(SimObject *self, const SimProperty &p, const Value *set) {
    SimMethod accessor;
    accessor.text = p.name;
    accessor.decl.name = p.name;
    accessor.function = set ? p.setter : p.getter;
    std::vector<Value> args;
    if (self) {
        // Instance accessors get the property's param after the object.
        Param param;
        param.name = "param";
        param.type.name = "integer";
        accessor.decl.params.push_back(param);
        args.push_back(I(p.param));
    }
    if (set) {
        Param value;
        value.name = "value";
        value.type = p.type;
        accessor.decl.params.push_back(value);
        args.push_back(*set);
    } else {
        accessor.decl.hasResult = true;
        accessor.decl.result = p.type;
    }
    if (!accessor.function) {
        noteMisuse("property " + p.name + " cannot be " + (set ? "set" : "read"));
        return CallResult();
    }
    return invoke(self, accessor, args);
}

CallResult SimHost::getProperty(const Value &self, const std::string &name) {
    SimObject *o = self.asObject();
    for (const SimClass *c = o ? o->cls : nullptr; c; c = c->super)
        for (const SimProperty &p : c->properties)
            if (lowerCase(p.name) == lowerCase(name)) return callProperty(o, p, nullptr);
    noteMisuse("no property " + name);
    return CallResult();
}

CallResult SimHost::getSharedProperty(const std::string &className, const std::string &name) {
    SimClass *cls = findClass(className);
    for (const SimClass *c = cls; c; c = c->super)
        for (const SimProperty &p : c->sharedProperties)
            if (lowerCase(p.name) == lowerCase(name)) return callProperty(nullptr, p, nullptr);
    noteMisuse("no shared property " + name);
    return CallResult();
}

CallResult SimHost::setSharedProperty(const std::string &className, const std::string &name,
                                      const Value &value) {
    SimClass *cls = findClass(className);
    for (const SimClass *c = cls; c; c = c->super)
        for (const SimProperty &p : c->sharedProperties)
            if (lowerCase(p.name) == lowerCase(name)) return callProperty(nullptr, p, &value);
    noteMisuse("no shared property " + name);
    return CallResult();
}

}  // namespace simhost
