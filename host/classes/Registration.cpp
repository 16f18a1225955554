#include "host/classes/Registration.h"

#include <vector>

#include "host/classes/ClassList.h"
#include "host/glue/Lifetime.h"

namespace {

// Flags: console, web and desktop together, which hosts before 2020.02 call
// console-safe; and a mark for "console-safe from 2010.029 on".
constexpr uint32_t kTargetMask = 0x708;
constexpr uint32_t kAllTargets = 0x308;
constexpr uint32_t kConsoleSafeFrom2010 = 0x40000;

// The arrays handed to the host live for the process and stay writable.
struct DefinitionStorage {
    std::vector<REALmethodDefinition> methods, sharedMethods;
    std::vector<REALproperty> properties, sharedProperties;
    std::vector<REALconstant> constants;
};

DefinitionStorage gStorage[kClassCount];

std::vector<REALmethodDefinition> methodDefinitions(TableSpan<MethodEntry> table) {
    std::vector<REALmethodDefinition> out;
    for (int i = 0; i < table.count; ++i) {
        const MethodEntry &e = table.items[i];
        out.push_back({e.function, nullptr, e.declaration, e.flags, 0, nullptr});
    }
    return out;
}

std::vector<REALproperty> propertyDefinitions(TableSpan<PropertyEntry> table) {
    std::vector<REALproperty> out;
    for (int i = 0; i < table.count; ++i) {
        const PropertyEntry &e = table.items[i];
        out.push_back(
            {"", e.name, e.type, e.flags, e.getter, e.setter, 0, nullptr, 0, nullptr, 0, nullptr});
    }
    return out;
}

std::vector<REALconstant> constantDefinitions(TableSpan<ConstantEntry> table) {
    std::vector<REALconstant> out;
    for (int i = 0; i < table.count; ++i)
        out.push_back({table.items[i].declaration, nullptr, 0, 0, nullptr});
    return out;
}

void fillStorage(DefinitionStorage &s, const ClassTables &t) {
    s.methods = methodDefinitions(t.methods);
    s.sharedMethods = methodDefinitions(t.sharedMethods);
    s.properties = propertyDefinitions(t.properties);
    s.sharedProperties = propertyDefinitions(t.sharedProperties);
    s.constants = constantDefinitions(t.constants);
}

// Derived classes of ours use their root's block: nothing to set up.
REALproc initializerOf(ClassId id, const ClassTables *tables) {
    if (tables) return tables->initializer;
    bool derived = rootOf(id) != id;
    return derived ? reinterpret_cast<REALproc>(&PrivateConstructor) : nullptr;
}

template <class T>
T *itemsOrNull(std::vector<T> &v) {
    return v.empty() ? nullptr : v.data();
}

void fillDefinition(ClassId id, double hostVersion) {
    const ClassSpec &spec = classSpec(id);
    DefinitionStorage &s = gStorage[static_cast<int>(id)];
    const ClassTables *t = spec.tables;
    // Made afresh for each host: the flag pass changes them in place.
    s = DefinitionStorage();
    if (t) fillStorage(s, *t);
    REALclassDefinition &d = classDefinition(id);
    d = REALclassDefinition();
    d.name = spec.name;
    d.superName = spec.superName;
    d.dataSize = spec.dataSize;
    d.constructor = initializerOf(id, t);
    d.destructor = t ? t->finalizer : nullptr;
    d.properties = itemsOrNull(s.properties);
    d.propertyCount = s.properties.size();
    d.methods = itemsOrNull(s.methods);
    d.methodCount = t ? registeredCount(t->methods, hostVersion) : 0;
    d.constants = itemsOrNull(s.constants);
    d.constantCount = s.constants.size();
    d.mFlags = REALTargetAllThree;
    d.sharedProperties = itemsOrNull(s.sharedProperties);
    d.sharedPropertyCount = s.sharedProperties.size();
    d.sharedMethods = itemsOrNull(s.sharedMethods);
    d.sharedMethodCount = t ? registeredCount(t->sharedMethods, hostVersion) : 0;
}

template <class T>
void passFlags(T *items, size_t count, uint32_t T::*flags, double hostVersion) {
    for (size_t i = 0; i < count; ++i) items[i].*flags = flagsForHost(items[i].*flags, hostVersion);
}

}  // namespace

int controlVersionFor(double hostVersion) {
    if (hostVersion >= 2013.04) return 13;
    if (hostVersion >= 2013.03) return 12;
    if (hostVersion >= 2013.0) return 11;
    if (hostVersion >= 2012.0) return 10;
    return 9;
}

uint32_t flagsForHost(uint32_t flags, double hostVersion) {
    if ((flags & kTargetMask) == kAllTargets && hostVersion < 2020.02)
        flags = (flags & ~kTargetMask) | REALconsoleSafe;
    if (flags & kConsoleSafeFrom2010) {
        flags &= ~kConsoleSafeFrom2010;
        if (hostVersion >= 2010.029) flags |= REALconsoleSafe;
    }
    return flags;
}

int registeredCount(TableSpan<MethodEntry> methods, double hostVersion) {
    int n = methods.count;
    while (n > 0 && methods.items[n - 1].minHostVersion > hostVersion) --n;
    return n;
}

void buildDefinitions(double hostVersion) {
    for (int i = 0; i < kClassCount; ++i) fillDefinition(static_cast<ClassId>(i), hostVersion);
}

void prepareDefinition(REALclassDefinition &def, double hostVersion, int controlVersion) {
    def.mFlags = flagsForHost(def.mFlags, hostVersion);
    passFlags(def.methods, def.methodCount, &REALmethodDefinition::mFlags, hostVersion);
    passFlags(def.sharedMethods, def.sharedMethodCount, &REALmethodDefinition::mFlags, hostVersion);
    passFlags(def.properties, def.propertyCount, &REALproperty::flags, hostVersion);
    passFlags(def.sharedProperties, def.sharedPropertyCount, &REALproperty::flags, hostVersion);
    def.dataSize = (def.dataSize + 15) / 16 * 16;
    def.version = static_cast<uint32_t>(controlVersion);
}
