// The runtime functions the plug-in asks the resolver for, by host name.
#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/host/simhost/SimHost.h"
#include "tests/host/simhost/SimRuntime.h"

namespace simhost {

namespace {

SimHost &host() {
    return *SimHost::current();
}

RefHeader *header(void *p) {
    return static_cast<RefHeader *>(p);
}

SimObject *objectOf(REALobject o) {
    RefHeader *r = header(o);
    return r && r->kind == RefKind::Object ? reinterpret_cast<SimObject *>(r) : nullptr;
}

SimString *stringOf(REALstring s) {
    RefHeader *r = header(s);
    return r && r->kind == RefKind::String ? reinterpret_cast<SimString *>(r) : nullptr;
}

SimArray *arrayOf(void *a) {
    RefHeader *r = header(a);
    return r && r->kind == RefKind::Array ? reinterpret_cast<SimArray *>(r) : nullptr;
}

bool isBuiltin(SimObject *o, Builtin kind) {
    return o && o->cls->isA(host().builtinClass(kind));
}

void RegisterPluginVersion(int version) {
    host().setControlVersion(version);
}

double REALGetRBVersion() {
    return host().hostVersion();
}

void PluginRegisterClass(REALclassDefinition *def) {
    host().registerClass(def);
}

void PluginRegisterModule(void *) {
    host().noteMisuse("a module registered");
}

REALobject PluginNewInstance(const char *className) {
    SimObject *o = host().newInstance(host().findClass(className ? className : ""));
    return reinterpret_cast<REALobject>(o);
}

void RuntimeRaiseException(REALobject exc) {
    host().raise(header(exc));
}

RBBoolean RuntimeObjectIsa(REALobject obj, REALclassRef cls) {
    SimObject *o = objectOf(obj);
    return o && cls && o->cls->isA(reinterpret_cast<SimClass *>(cls));
}

REALclassRef pluginObjectType(const char *className) {
    return reinterpret_cast<REALclassRef>(host().findClass(className ? className : ""));
}

void dictionarySetValue(REALobject dict, REALobject key, REALobject value) {
    SimObject *d = objectOf(dict), *k = objectOf(key);
    if (!isBuiltin(d, Builtin::Dictionary) || !isBuiltin(k, Builtin::Variant))
        return host().noteMisuse("Dictionary.Value with a bad dictionary or key");
    host().lock(header(value));
    RefHeader *&slot = d->state->dictionary[k->state->variantText];
    RefHeader *old = slot;
    slot = header(value);
    host().unlock(old);
}

std::string compact(const char *prototype) {
    std::string out;
    for (const char *c = prototype; c && *c; ++c)
        if (*c != ' ') out += (char)tolower((unsigned char)*c);
    return out;
}

void *REALLoadObjectMethod(REALobject obj, const char *prototype) {
    if (isBuiltin(objectOf(obj), Builtin::Dictionary) &&
        compact(prototype) == "value(keyasvariant,assignsvalueasvariant)")
        return reinterpret_cast<void *>(&dictionarySetValue);
    host().noteMisuse(std::string("no object method ") + (prototype ? prototype : ""));
    return nullptr;
}

void *REALLoadGlobalMethod(const char *, const char *prototype) {
    host().noteMisuse(std::string("no framework method ") + (prototype ? prototype : ""));
    return nullptr;
}

REALarray RuntimeArrayCreateSingleDimBoundedArray(int type, RBInteger upperBound) {
    return reinterpret_cast<REALarray>(host().newArray(type, upperBound + 1));
}

int64_t itemCount(SimArray *a) {
    if (a->claimedCount >= 0) return a->claimedCount;
    if (a->elementType == kTypeFloat64) return (int64_t)a->doubles.size();
    if (a->elementType == kTypeString || a->elementType == kTypeObject)
        return (int64_t)a->refs.size();
    return (int64_t)a->integers.size();
}

RBInteger RuntimeUBound(void *array) {
    SimArray *a = arrayOf(array);
    return a ? itemCount(a) - 1 : -1;
}

RBBoolean PluginGetStringData(REALstring s, uint32_t, REALstringData *out) {
    SimString *str = stringOf(s);
    if (!out || (s && !str)) return 0;
    std::string bytes = str ? str->bytes : std::string();
    char *copy = static_cast<char *>(malloc(bytes.size() + 1));
    memcpy(copy, bytes.data(), bytes.size());
    copy[bytes.size()] = 0;
    *out = {copy, bytes.size(), kREALTextEncodingUTF8, copy, 0x5354};
    ++host().openStringData();
    return 1;
}

void PluginDisposeStringData(REALstringData *data) {
    if (!data || data->private2 != 0x5354) return host().noteMisuse("bad string data disposed");
    free(data->private1);
    data->private1 = nullptr;
    data->private2 = 0;
    --host().openStringData();
}

const void *StringGetCString(REALstring s) {
    SimString *str = stringOf(s);
    return str ? str->bytes.c_str() : "";
}

REALobject StringToVariant(REALstring s) {
    SimObject *v = host().newObject(host().builtinClass(Builtin::Variant));
    SimString *str = stringOf(s);
    v->state->variantText = str ? str->bytes : "";
    return reinterpret_cast<REALobject>(v);
}

REALobject newMemoryBlock(int bytes) {
    SimObject *m = host().newObject(host().builtinClass(Builtin::MemoryBlock));
    m->state->bytes.assign(bytes > 0 ? bytes : 0, 0);
    return reinterpret_cast<REALobject>(m);
}

void *memoryBlockGetPtr(REALobject mb) {
    SimObject *m = objectOf(mb);
    if (!isBuiltin(m, Builtin::MemoryBlock)) return nullptr;
    return m->state->bytes.empty() ? nullptr : m->state->bytes.data();
}

RBInteger memoryBlockGetSize(REALobject mb) {
    SimObject *m = objectOf(mb);
    return isBuiltin(m, Builtin::MemoryBlock) ? (RBInteger)m->state->bytes.size() : 0;
}

void REALLockObject(REALobject obj) {
    host().lock(header(obj));
}

void REALUnlockObject(REALobject obj) {
    host().unlock(header(obj));
}

void REALLockString(REALstring s) {
    host().lock(header(s));
}

void REALUnlockString(REALstring s) {
    host().unlock(header(s));
}

REALstring REALBuildStringWithEncoding(const char *bytes, int count, uint32_t encoding) {
    std::string text = bytes && count > 0 ? std::string(bytes, count) : std::string();
    return reinterpret_cast<REALstring>(host().newString(text, encoding));
}

REALstring REALConvertString(REALstring s, uint32_t encoding) {
    SimString *str = stringOf(s);
    return reinterpret_cast<REALstring>(host().newString(str ? str->bytes : "", encoding));
}

uint32_t REALGetStringEncoding(REALstring s) {
    SimString *str = stringOf(s);
    return str ? str->encoding : kREALTextEncodingUnknown;
}

// Exceptions carry Message and ErrorNumber; other objects have no properties
// the plug-in may set by name.
bool exceptionOf(REALobject obj, const char *name, SimObject *&o) {
    o = objectOf(obj);
    bool ok = isBuiltin(o, Builtin::Exception) && name &&
              (!strcmp(name, "Message") || !strcmp(name, "ErrorNumber"));
    if (!ok) host().noteMisuse(std::string("no property ") + (name ? name : "") + " to use");
    return ok;
}

RBBoolean REALGetPropValueInteger(REALobject obj, const char *name, RBInteger *value) {
    SimObject *o;
    if (!exceptionOf(obj, name, o) || !value) return 0;
    *value = o->state->integerProps[name];
    return 1;
}

RBBoolean REALSetPropValueInteger(REALobject obj, const char *name, RBInteger value) {
    SimObject *o;
    if (!exceptionOf(obj, name, o)) return 0;
    o->state->integerProps[name] = value;
    return 1;
}

RBBoolean REALSetPropValueString(REALobject obj, const char *name, REALstring value) {
    SimObject *o;
    if (!exceptionOf(obj, name, o)) return 0;
    SimString *s = stringOf(value);
    o->state->stringProps[name] = s ? s->bytes : "";
    return 1;
}

RBBoolean REALGetPropValueBool(REALobject, const char *name, RBBoolean *) {
    host().noteMisuse(std::string("no boolean property ") + (name ? name : ""));
    return 0;
}

// Array elements: the element functions check the type and the index, as the
// host raises on both.
SimArray *checked(REALarray array, int type, RBInteger index, bool insert) {
    SimArray *a = arrayOf(array);
    bool typeOk =
        a && (a->elementType == type || (type == kTypeInteger && a->elementType == kTypeSInt32));
    if (!typeOk) {
        host().noteMisuse("element access of the wrong type");
        return nullptr;
    }
    int64_t n = a->claimedCount >= 0 ? 0 : itemCount(a);
    if (index < 0 || index > n || (!insert && index == n)) {
        host().noteMisuse("element index out of bounds");
        return nullptr;
    }
    return a;
}

double doubleGet(REALarray array, RBInteger i) {
    SimArray *a = checked(array, kTypeFloat64, i, false);
    return a ? a->doubles[i] : 0;
}
void doubleSet(REALarray array, double v, RBInteger i) {
    if (SimArray *a = checked(array, kTypeFloat64, i, false)) a->doubles[i] = v;
}
void doubleInsert(REALarray array, RBInteger i, double v) {
    if (SimArray *a = checked(array, kTypeFloat64, i, true))
        a->doubles.insert(a->doubles.begin() + i, v);
}
RBInteger integerGet(REALarray array, RBInteger i) {
    SimArray *a = checked(array, kTypeInteger, i, false);
    return a ? a->integers[i] : 0;
}
void integerSet(REALarray array, RBInteger v, RBInteger i) {
    if (SimArray *a = checked(array, kTypeInteger, i, false)) a->integers[i] = v;
}
RBColor colorGet(REALarray array, RBInteger i) {
    SimArray *a = checked(array, kTypeColor, i, false);
    return a ? (RBColor)a->integers[i] : 0;
}
// Strings and objects come with a lock for the caller.
REALstring stringGet(REALarray array, RBInteger i) {
    SimArray *a = checked(array, kTypeString, i, false);
    if (!a) return nullptr;
    host().lock(a->refs[i]);
    return reinterpret_cast<REALstring>(a->refs[i]);
}
REALobject objectGet(REALarray array, RBInteger i) {
    SimArray *a = checked(array, kTypeObject, i, false);
    if (!a) return nullptr;
    host().lock(a->refs[i]);
    return reinterpret_cast<REALobject>(a->refs[i]);
}
void objectInsert(REALarray array, RBInteger i, REALobject v) {
    if (SimArray *a = checked(array, kTypeObject, i, true)) {
        host().lock(header(v));
        a->refs.insert(a->refs.begin() + i, header(v));
    }
}

template <class F>
void *procFor(F *function) {
    return reinterpret_cast<void *>(function);
}

void *PluginDoubleArrayGetProc(REALarray) {
    return procFor(doubleGet);
}
void *PluginDoubleArraySetProc(REALarray) {
    return procFor(doubleSet);
}
void *PluginDoubleArrayInsertProc(REALarray) {
    return procFor(doubleInsert);
}
void *PluginIntegerArrayGetProc(REALarray) {
    return procFor(integerGet);
}
void *PluginIntegerArraySetProc(REALarray) {
    return procFor(integerSet);
}
void *PluginColorArrayGetProc(REALarray) {
    return procFor(colorGet);
}
void *PluginStringArrayGetProc(REALarray) {
    return procFor(stringGet);
}
void *PluginObjectArrayGetProc(REALarray) {
    return procFor(objectGet);
}
void *PluginObjectArrayInsertProc(REALarray) {
    return procFor(objectInsert);
}

struct NamedFunction {
    const char *name;
    void *function;
};

#define SIM_FUNCTION(f) \
    { #f, reinterpret_cast < void *>(&f) }
const NamedFunction kFunctions[] = {
    SIM_FUNCTION(RegisterPluginVersion),
    SIM_FUNCTION(REALGetRBVersion),
    SIM_FUNCTION(PluginRegisterClass),
    SIM_FUNCTION(PluginRegisterModule),
    SIM_FUNCTION(PluginNewInstance),
    SIM_FUNCTION(RuntimeRaiseException),
    SIM_FUNCTION(RuntimeObjectIsa),
    SIM_FUNCTION(pluginObjectType),
    SIM_FUNCTION(REALLoadObjectMethod),
    SIM_FUNCTION(REALLoadGlobalMethod),
    SIM_FUNCTION(RuntimeArrayCreateSingleDimBoundedArray),
    SIM_FUNCTION(RuntimeUBound),
    SIM_FUNCTION(PluginGetStringData),
    SIM_FUNCTION(PluginDisposeStringData),
    SIM_FUNCTION(StringGetCString),
    SIM_FUNCTION(StringToVariant),
    SIM_FUNCTION(newMemoryBlock),
    SIM_FUNCTION(memoryBlockGetPtr),
    SIM_FUNCTION(memoryBlockGetSize),
    SIM_FUNCTION(REALLockObject),
    SIM_FUNCTION(REALUnlockObject),
    SIM_FUNCTION(REALLockString),
    SIM_FUNCTION(REALUnlockString),
    SIM_FUNCTION(REALBuildStringWithEncoding),
    SIM_FUNCTION(REALConvertString),
    SIM_FUNCTION(REALGetStringEncoding),
    SIM_FUNCTION(REALGetPropValueInteger),
    SIM_FUNCTION(REALSetPropValueInteger),
    SIM_FUNCTION(REALSetPropValueString),
    SIM_FUNCTION(REALGetPropValueBool),
    SIM_FUNCTION(PluginDoubleArrayGetProc),
    SIM_FUNCTION(PluginDoubleArraySetProc),
    SIM_FUNCTION(PluginDoubleArrayInsertProc),
    SIM_FUNCTION(PluginIntegerArrayGetProc),
    SIM_FUNCTION(PluginIntegerArraySetProc),
    SIM_FUNCTION(PluginColorArrayGetProc),
    SIM_FUNCTION(PluginStringArrayGetProc),
    SIM_FUNCTION(PluginObjectArrayGetProc),
    SIM_FUNCTION(PluginObjectArrayInsertProc),
};
#undef SIM_FUNCTION

}  // namespace

void *hostFunction(const char *entryName) {
    for (const NamedFunction &f : kFunctions)
        if (!strcmp(f.name, entryName)) return f.function;
    return nullptr;
}

void *hostResolver(const char *entryName) {
    SimHost *h = SimHost::current();
    return h && entryName ? h->resolve(entryName) : nullptr;
}

}  // namespace simhost
