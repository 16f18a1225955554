#include "tests/host/simhost/SimHost.h"

#include <dlfcn.h>

#include <cstdlib>
#include <cstring>

#include "tests/host/simhost/SimRuntime.h"

namespace simhost {

namespace {

SimHost *gCurrent = nullptr;

// The header in front of the plug-in's data, kept at a 16-byte boundary.
constexpr size_t kObjectHeader = (sizeof(SimObject) + 15) / 16 * 16;

std::string refName(RefHeader *r) {
    switch (r->kind) {
        case RefKind::Object:
            return reinterpret_cast<SimObject *>(r)->cls->name;
        case RefKind::String:
            return "String \"" + reinterpret_cast<SimString *>(r)->bytes + "\"";
        case RefKind::Array:
            return "array";
    }
    return "?";
}

}  // namespace

SimHost::SimHost(const std::string &pluginPath, HostOptions options) : options_(options) {
    gCurrent = this;
    addBuiltinClasses();
    library_ = dlopen(pluginPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library_) {
        loadError_ = dlerror();
        return;
    }
    start(reinterpret_cast<PluginMain>(dlsym(library_, "REALPluginMain")));
}

SimHost::SimHost(PluginMain main, HostOptions options) : options_(options) {
    gCurrent = this;
    addBuiltinClasses();
    start(main);
}

void SimHost::start(PluginMain main) {
    if (!main) {
        loadError_ = "no REALPluginMain";
        return;
    }
    pluginMainResult_ = main(hostResolver);
    linkClasses();
}

SimHost::~SimHost() {
    if (pending_) unlock(pending_);
    // The plug-in stays loaded: its registration tables live for the process.
    if (gCurrent == this) gCurrent = nullptr;
}

SimHost *SimHost::current() {
    return gCurrent;
}

SimClass *SimHost::addClass(const std::string &name, const std::string &superName,
                            Builtin builtin) {
    classes_.push_back(std::make_unique<SimClass>());
    SimClass *c = classes_.back().get();
    c->name = name;
    c->superName = superName;
    c->builtin = builtin;
    byName_[lowerCase(name)] = c;
    return c;
}

void SimHost::addBuiltinClasses() {
    addClass("Object", "", Builtin::Object);
    addClass("RuntimeException", "Object", Builtin::Exception);
    for (const char *e : {"OutOfMemoryException", "OutOfBoundsException", "NilObjectException"})
        addClass(e, "RuntimeException", Builtin::Exception);
    addClass("Dictionary", "Object", Builtin::Dictionary);
    addClass("MemoryBlock", "Object", Builtin::MemoryBlock);
    addClass("Variant", "Object", Builtin::Variant);
    for (auto &c : classes_) {
        c->super = c->superName.empty() ? nullptr : byName_[lowerCase(c->superName)];
        c->instanceSize = kObjectHeader;
    }
}

SimClass *SimHost::builtinClass(Builtin kind) const {
    for (const auto &c : classes_)
        if (c->builtin == kind) return c.get();
    return nullptr;
}

SimClass *SimHost::findClass(const std::string &name) const {
    auto it = byName_.find(lowerCase(name));
    return it == byName_.end() ? nullptr : it->second;
}

void SimHost::registerClass(REALclassDefinition *def) {
    if (!def || !def->name) return noteMisuse("a class without a name");
    if (findClass(def->name))
        return noteMisuse(std::string("class registered twice: ") + def->name);
    SimClass *c = addClass(def->name, def->superName ? def->superName : "Object", Builtin::None);
    c->definition = def;
    pluginClasses_.push_back(c);
    std::string error;
    auto readMethods = [&](REALmethodDefinition *m, size_t n, std::vector<SimMethod> &out) {
        for (size_t i = 0; i < n; ++i) {
            SimMethod sm{m[i].declaration ? m[i].declaration : "", Declaration(), m[i].function};
            if (!parseDeclaration(sm.text, sm.decl, error))
                c->declarationErrors.push_back(error);
            else
                out.push_back(sm);
        }
    };
    readMethods(def->methods, def->methodCount, c->methods);
    readMethods(def->sharedMethods, def->sharedMethodCount, c->sharedMethods);
    auto readProperties = [&](REALproperty *p, size_t n, std::vector<SimProperty> &out) {
        for (size_t i = 0; i < n; ++i) {
            SimProperty sp{p[i].name ? p[i].name : "", XojoType(), p[i].getter, p[i].setter,
                           p[i].param};
            sp.type.name = lowerCase(p[i].type ? p[i].type : "");
            if (sp.name.empty() || sp.type.name.empty())
                c->declarationErrors.push_back("property without name or type in " + c->name);
            else
                out.push_back(sp);
        }
    };
    readProperties(def->properties, def->propertyCount, c->properties);
    readProperties(def->sharedProperties, def->sharedPropertyCount, c->sharedProperties);
    for (size_t i = 0; i < def->constantCount; ++i) {
        ConstantDecl k;
        if (!parseConstant(def->constants[i].declaration ? def->constants[i].declaration : "", k,
                           error))
            c->declarationErrors.push_back(error);
        else
            c->constants.push_back(k);
    }
}

// Supers are known once everything is registered (a class may come before its
// super); then each class's data goes behind its super's.
void SimHost::linkClasses() {
    for (SimClass *c : pluginClasses_) {
        c->super = findClass(c->superName);
        if (!c->super) noteMisuse("unknown super " + c->superName + " of " + c->name);
    }
    std::map<SimClass *, bool> placed;
    std::vector<SimClass *> pending(pluginClasses_.begin(), pluginClasses_.end());
    while (!pending.empty()) {
        size_t before = pending.size();
        for (size_t i = 0; i < pending.size();) {
            SimClass *c = pending[i];
            if (c->super && c->super->definition && !placed[c->super]) {
                ++i;
                continue;
            }
            size_t offset = c->super ? c->super->instanceSize : kObjectHeader;
            c->definition->forSystemUse = (RBInteger)offset;
            c->instanceSize = offset + c->definition->dataSize;
            placed[c] = true;
            pending.erase(pending.begin() + i);
        }
        if (pending.size() == before) {
            noteMisuse("a cycle of supers");
            break;
        }
    }
}

std::vector<std::string> SimHost::declarationErrors() const {
    std::vector<std::string> all;
    for (SimClass *c : pluginClasses_)
        for (const std::string &e : c->declarationErrors) all.push_back(c->name + ": " + e);
    return all;
}

void SimHost::lock(RefHeader *r) {
    if (!r) return;
    if (!live_.count(r->serial)) return noteMisuse("lock of a dead reference");
    ++r->refCount;
}

void SimHost::unlock(RefHeader *r) {
    if (!r) return;
    if (!live_.count(r->serial)) return noteMisuse("unlock of a dead reference");
    int left = --r->refCount;
    if (left < 0) noteMisuse("reference count below zero");
    if (left == 0) release(r);
}

SimObject *SimHost::newObject(SimClass *cls) {
    auto *o = static_cast<SimObject *>(calloc(1, cls->instanceSize));
    o->header = {RefKind::Object, 1, nextSerial_++};
    o->cls = cls;
    o->state = new BuiltinState();
    live_[o->header.serial] = &o->header;
    // Initializers along the chain, the root first.
    std::vector<SimClass *> chain;
    for (SimClass *c = cls; c; c = c->super) chain.insert(chain.begin(), c);
    for (SimClass *c : chain)
        if (c->definition && c->definition->constructor)
            reinterpret_cast<void (*)(REALobject)>(c->definition->constructor)(
                reinterpret_cast<REALobject>(o));
    return o;
}

SimObject *SimHost::newInstance(SimClass *cls) {
    if (!cls) return nullptr;
    std::vector<const SimMethod *> ctors;
    for (const SimClass *c = cls; c && ctors.empty(); c = c->super)
        ctors = methodsNamed(c, "constructor", false);
    SimObject *o = newObject(cls);
    for (const SimMethod *m : ctors) {
        bool allDefaults = true;
        for (const Param &p : m->decl.params) allDefaults = allDefaults && p.hasDefault;
        if (!allDefaults) continue;
        std::vector<Value> none;
        invoke(o, *m, none);
        break;
    }
    return o;
}

SimString *SimHost::newString(const std::string &bytes, uint32_t encoding) {
    auto *s = new SimString{{RefKind::String, 1, nextSerial_++}, bytes, encoding};
    live_[s->header.serial] = &s->header;
    return s;
}

SimArray *SimHost::newArray(int elementType, int64_t count) {
    auto *a = new SimArray();
    a->header = {RefKind::Array, 1, nextSerial_++};
    a->elementType = elementType;
    size_t n = count < 0 ? 0 : (size_t)count;
    if (elementType == kTypeFloat64)
        a->doubles.assign(n, 0.0);
    else if (elementType == kTypeString || elementType == kTypeObject)
        a->refs.assign(n, nullptr);
    else
        a->integers.assign(n, 0);
    live_[a->header.serial] = &a->header;
    return a;
}

void SimHost::release(RefHeader *r) {
    switch (r->kind) {
        case RefKind::Object:
            destroyObject(reinterpret_cast<SimObject *>(r));
            return;
        case RefKind::String:
            live_.erase(r->serial);
            delete reinterpret_cast<SimString *>(r);
            return;
        case RefKind::Array: {
            auto *a = reinterpret_cast<SimArray *>(r);
            live_.erase(r->serial);
            for (RefHeader *item : a->refs) unlock(item);
            delete a;
            return;
        }
    }
}

void SimHost::destroyObject(SimObject *o) {
    // Finalizers the other way round: the most derived first.
    for (SimClass *c = o->cls; c; c = c->super)
        if (c->definition && c->definition->destructor)
            reinterpret_cast<void (*)(REALobject)>(c->definition->destructor)(
                reinterpret_cast<REALobject>(o));
    if (o->header.refCount != 0) noteMisuse("an object locked by its own finalizer");
    live_.erase(o->header.serial);
    for (auto &entry : o->state->dictionary) unlock(entry.second);
    delete o->state;
    free(o);
}

void SimHost::raise(RefHeader *exception) {
    if (!exception || exception->kind != RefKind::Object)
        return noteMisuse("raise of something that is no object");
    auto *o = reinterpret_cast<SimObject *>(exception);
    if (!o->cls->isA(builtinClass(Builtin::Exception)))
        return noteMisuse("raise of " + o->cls->name + ", no RuntimeException");
    if (pending_) noteMisuse("a second exception raised before returning");
    lock(exception);
    if (pending_) unlock(pending_);
    pending_ = exception;
}

CallResult SimHost::takeRaised(CallResult result) {
    if (!pending_) return result;
    auto *o = reinterpret_cast<SimObject *>(pending_);
    result.raised = true;
    result.exception.className = o->cls->name;
    result.exception.message = o->state->stringProps["Message"];
    result.exception.errorNumber = o->state->integerProps["ErrorNumber"];
    RefHeader *e = pending_;
    pending_ = nullptr;
    unlock(e);
    return result;
}

void SimHost::noteMisuse(const std::string &what) {
    misuse_.push_back(what);
}

std::vector<std::string> SimHost::misuse() const {
    std::vector<std::string> all = misuse_;
    if (openStringData_)
        all.push_back(std::to_string(openStringData_) + " string data not disposed");
    return all;
}

std::vector<std::string> SimHost::liveObjects() const {
    std::vector<std::string> out;
    for (const auto &entry : live_)
        out.push_back(refName(entry.second) + " #" + std::to_string(entry.first) + " (" +
                      std::to_string(entry.second->refCount) + " refs)");
    return out;
}

std::string SimHost::className(const Value &object) const {
    SimObject *o = object.asObject();
    return o ? o->cls->name : "";
}

int SimHost::refCount(const Value &v) const {
    return v.ref ? v.ref.get()->refCount : 0;
}

Value SimHost::arrayValue(SimArray *a) {
    Value v;
    v.type = Value::Array;
    v.ref = Ref::adopt(this, &a->header);
    return v;
}

Value SimHost::doubles(const std::vector<double> &items) {
    SimArray *a = newArray(kTypeFloat64, 0);
    a->doubles = items;
    return arrayValue(a);
}

Value SimHost::integers(const std::vector<int64_t> &items) {
    SimArray *a = newArray(kTypeInteger, 0);
    a->integers = items;
    return arrayValue(a);
}

Value SimHost::colors(const std::vector<uint32_t> &items) {
    SimArray *a = newArray(kTypeColor, 0);
    for (uint32_t c : items) a->integers.push_back(c);
    return arrayValue(a);
}

Value SimHost::strings(const std::vector<std::string> &items) {
    SimArray *a = newArray(kTypeString, 0);
    for (const std::string &s : items)
        a->refs.push_back(&newString(s, kREALTextEncodingUTF8)->header);
    return arrayValue(a);
}

Value SimHost::claimingDoubleArray(int64_t count) {
    SimArray *a = newArray(kTypeFloat64, 0);
    a->claimedCount = count;
    return arrayValue(a);
}

Value SimHost::memoryBlock(const std::string &bytes) {
    SimObject *o = newObject(builtinClass(Builtin::MemoryBlock));
    o->state->bytes.assign(bytes.begin(), bytes.end());
    return Value::object(Ref::adopt(this, &o->header));
}

std::vector<double> SimHost::doublesOf(const Value &array) const {
    SimArray *a = array.asArray();
    return a ? a->doubles : std::vector<double>();
}

std::vector<int64_t> SimHost::integersOf(const Value &array) const {
    SimArray *a = array.asArray();
    return a ? a->integers : std::vector<int64_t>();
}

std::string SimHost::bytesOf(const Value &memoryBlock) const {
    SimObject *o = memoryBlock.asObject();
    return o ? std::string(o->state->bytes.begin(), o->state->bytes.end()) : std::string();
}

std::map<std::string, std::string> SimHost::dictionaryOf(const Value &dictionary) const {
    std::map<std::string, std::string> out;
    SimObject *o = dictionary.asObject();
    if (!o) return out;
    for (const auto &entry : o->state->dictionary)
        out[entry.first] = entry.second ? refName(entry.second) : "nil";
    return out;
}

void *SimHost::resolve(const char *name) {
    if (!name || options_.missingFunctions.count(name)) return nullptr;
    return hostFunction(name);
}

}  // namespace simhost
