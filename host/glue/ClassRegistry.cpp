#include "host/glue/ClassRegistry.h"

#include <cctype>
#include <cstring>
#include <string>

namespace {

REALclassDefinition gDefinitions[kClassCount];

// "name(a as color)" gives "nameC"; the colour overloads share a name.
std::string logName(const char *declaration) {
    const char *open = strchr(declaration, '(');
    std::string name(declaration, open ? open - declaration : strlen(declaration));
    std::string lower;
    for (const char *c = declaration; *c; ++c) lower += (char)tolower((unsigned char)*c);
    size_t close = lower.find(')');
    if (lower.find(" as color") < close) name += "C";
    return name;
}

const char *findIn(const REALmethodDefinition *methods, size_t count, REALproc function) {
    static thread_local std::string name;
    for (size_t i = 0; i < count; ++i)
        if (methods[i].function == function) {
            name = logName(methods[i].declaration);
            return name.c_str();
        }
    return nullptr;
}

const char *findGetter(const REALproperty *properties, size_t count, REALproc function) {
    for (size_t i = 0; i < count; ++i)
        if (properties[i].getter == function) return properties[i].name;
    return nullptr;
}

}  // namespace

REALclassDefinition &classDefinition(ClassId id) {
    return gDefinitions[static_cast<int>(id)];
}

const char *glueName(REALproc function) {
    for (const REALclassDefinition &d : gDefinitions) {
        if (const char *name = findIn(d.methods, d.methodCount, function)) return name;
        if (const char *name = findIn(d.sharedMethods, d.sharedMethodCount, function)) return name;
        if (const char *name = findGetter(d.properties, d.propertyCount, function)) return name;
    }
    return "?";
}
