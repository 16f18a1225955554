#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/sdk/PluginTypes.h"
#include "tests/host/simhost/Declaration.h"

// What the simulated host hands the plug-in: every REALobject, REALstring and
// REALarray starts with a RefHeader, counted by REALLockObject/REALUnlockObject.
namespace simhost {

enum class RefKind : uint32_t { Object = 0x4f424a31, String = 0x53545231, Array = 0x41525231 };

struct RefHeader {
    RefKind kind;
    int refCount;
    uint64_t serial;
};

struct SimClass;

// Storage of the host's own classes.
struct BuiltinState {
    std::map<std::string, std::string> stringProps;
    std::map<std::string, int64_t> integerProps;
    std::vector<char> bytes;                        // MemoryBlock
    std::map<std::string, RefHeader *> dictionary;  // Dictionary: key text, locked value
    std::string variantText;                        // Variant holding a string
};

// The plug-in's data of every class of the chain follows the header at the
// offsets the definitions' forSystemUse give.
struct SimObject {
    RefHeader header;
    SimClass *cls;
    BuiltinState *state;
};

struct SimString {
    RefHeader header;
    std::string bytes;
    uint32_t encoding;
};

struct SimArray {
    RefHeader header;
    int elementType;
    std::vector<int64_t> integers;  // Integer, Color, Boolean
    std::vector<double> doubles;
    std::vector<RefHeader *> refs;  // String, Object: each locked
    // An array that claims more items than it holds (for allocation failures).
    int64_t claimedCount = -1;
};

struct SimMethod {
    std::string text;
    Declaration decl;
    REALproc function;
};

struct SimProperty {
    std::string name;
    XojoType type;
    REALproc getter;
    REALproc setter;
    int32_t param;
};

enum class Builtin { None, Object, Exception, Dictionary, MemoryBlock, Variant };

struct SimClass {
    std::string name;
    std::string superName;
    SimClass *super = nullptr;
    REALclassDefinition *definition = nullptr;  // null for the host's own classes
    Builtin builtin = Builtin::None;
    size_t instanceSize = 0;
    std::vector<SimMethod> methods, sharedMethods;
    std::vector<SimProperty> properties, sharedProperties;
    std::vector<ConstantDecl> constants;
    std::vector<std::string> declarationErrors;

    bool isA(const SimClass *other) const {
        for (const SimClass *c = this; c; c = c->super)
            if (c == other) return true;
        return false;
    }
};

}  // namespace simhost
