#pragma once

// The types and structures of the Xojo plug-in interface for 64-bit Linux, laid
// out as the host reads them.  Definitions handed to the host must stay alive
// and writable for the whole process: the host fills forSystemUse.

#include <cstddef>
#include <cstdint>

extern "C" {

typedef struct REALobjectStruct *REALobject;
typedef struct REALstringStruct *REALstring;
typedef struct REALarrayStruct *REALarray;
typedef struct REALclassRefStruct *REALclassRef;
typedef REALobject REALmemoryBlock;
typedef void (*REALproc)(void);

typedef int64_t RBInteger;
typedef uint32_t RBColor;
typedef int8_t RBBoolean;

struct REALattribute {
    const char *mName;
    const char *mValue;
};

struct REALmethodDefinition {
    REALproc function;
    REALproc setterFunction;
    const char *declaration;
    uint32_t mFlags;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALproperty {
    const char *group;
    const char *name;
    const char *type;
    uint32_t flags;
    REALproc getter;
    REALproc setter;
    int32_t param;
    REALproc editor;
    size_t enumCount;
    const char **enumEntries;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALevent {
    const char *declaration;
    RBInteger forSystemUse;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALeventInstance {
    const char *name;
    REALproc implementation;
};

struct REALconstant {
    const char *declaration;
    void *reserved1;
    uint32_t mFlags;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALdelegate {
    const char *declaration;
    uint32_t mFlags;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALenum {
    const char *name;
    const char *type;
    uint32_t mFlags;
    const char **fields;
    size_t numFields;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALclassDefinition {
    uint32_t version;
    const char *name;
    const char *superName;
    size_t dataSize;
    RBInteger forSystemUse;
    REALproc constructor;
    REALproc destructor;
    REALproperty *properties;
    size_t propertyCount;
    REALmethodDefinition *methods;
    size_t methodCount;
    REALevent *events;
    size_t eventCount;
    REALeventInstance *eventInstances;
    size_t eventInstanceCount;
    const char *interfaces;
    REALattribute *attributes;
    size_t attributeCount;
    REALconstant *constants;
    size_t constantCount;
    uint32_t mFlags;
    REALproperty *sharedProperties;
    size_t sharedPropertyCount;
    REALmethodDefinition *sharedMethods;
    size_t sharedMethodCount;
    REALdelegate *delegates;
    size_t delegateCount;
    REALenum *enums;
    size_t enumCount;
};

struct REALstringData {
    const void *data;
    size_t length;
    uint32_t encoding;
    void *private1;
    uint32_t private2;
};

}  // extern "C"

// Flags of definitions, methods and properties.
constexpr uint32_t REALpropRuntimeOnly = 1u << 1;
constexpr uint32_t REALconsoleSafe = 1u << 2;
constexpr uint32_t REALconsoleOnly = 1u << 3;
constexpr uint32_t REALScopeGlobal = 1u << 4;
constexpr uint32_t REALScopePublic = 1u << 5;
constexpr uint32_t REALScopeProtected = 1u << 6;
constexpr uint32_t REALScopePrivate = 1u << 7;
constexpr uint32_t REALwebOnly = 1u << 8;
constexpr uint32_t REALTargetDesktop = 1u << 9;
// Console, web and desktop targets together: the flags a class of ours carries.
constexpr uint32_t REALTargetAllThree = REALconsoleOnly | REALwebOnly | REALTargetDesktop;

inline REALproc REALstandardGetter() {
    return reinterpret_cast<REALproc>(static_cast<intptr_t>(-1));
}

// Element types of REALCreateArray.
enum REALArrayType {
    kTypeSInt32 = 0,
    kTypeFloat32 = 1,
    kTypeFloat64 = 2,
    kTypeString = 3,
    kTypeObject = 4,
    kTypeUInt8 = 5,
    kTypeSInt8 = 6,
    kTypeUInt16 = 7,
    kTypeSInt16 = 8,
    kTypeUInt32 = 9,
    kTypeUInt64 = 10,
    kTypeSInt64 = 11,
    kTypeStructure = 12,
    kTypePtr = 13,
    kTypeColor = 14,
    kTypeCurrency = 15,
    kTypeBoolean = 16,
    kTypeText = 17,
    kTypeInteger = kTypeSInt64,
};

constexpr uint32_t kREALTextEncodingUnknown = 0xFFFF;
constexpr uint32_t kREALTextEncodingASCII = 0x0600;
constexpr uint32_t kREALTextEncodingUTF8 = 0x08000100;

// Field offsets the host reads, for x86-64.
static_assert(sizeof(REALattribute) == 16, "REALattribute");
static_assert(sizeof(REALmethodDefinition) == 48, "REALmethodDefinition");
static_assert(offsetof(REALmethodDefinition, declaration) == 16, "declaration");
static_assert(offsetof(REALmethodDefinition, mFlags) == 24, "mFlags");
static_assert(offsetof(REALmethodDefinition, attributes) == 40, "attributes");
static_assert(sizeof(REALproperty) == 96, "REALproperty");
static_assert(offsetof(REALproperty, getter) == 32, "getter");
static_assert(offsetof(REALproperty, param) == 48, "param");
static_assert(offsetof(REALproperty, enumCount) == 64, "enumCount");
static_assert(offsetof(REALproperty, attributes) == 88, "attributes");
static_assert(sizeof(REALevent) == 32, "REALevent");
static_assert(sizeof(REALeventInstance) == 16, "REALeventInstance");
static_assert(sizeof(REALconstant) == 40, "REALconstant");
static_assert(offsetof(REALconstant, mFlags) == 16, "mFlags");
static_assert(sizeof(REALdelegate) == 32, "REALdelegate");
static_assert(sizeof(REALenum) == 56, "REALenum");
static_assert(sizeof(REALclassDefinition) == 232, "REALclassDefinition");
static_assert(offsetof(REALclassDefinition, dataSize) == 24, "dataSize");
static_assert(offsetof(REALclassDefinition, forSystemUse) == 32, "forSystemUse");
static_assert(offsetof(REALclassDefinition, methods) == 72, "methods");
static_assert(offsetof(REALclassDefinition, interfaces) == 120, "interfaces");
static_assert(offsetof(REALclassDefinition, constants) == 144, "constants");
static_assert(offsetof(REALclassDefinition, mFlags) == 160, "mFlags");
static_assert(offsetof(REALclassDefinition, sharedProperties) == 168, "sharedProperties");
static_assert(offsetof(REALclassDefinition, sharedMethods) == 184, "sharedMethods");
static_assert(offsetof(REALclassDefinition, delegates) == 200, "delegates");
static_assert(offsetof(REALclassDefinition, enumCount) == 224, "enumCount");
static_assert(sizeof(REALstringData) == 40, "REALstringData");
static_assert(offsetof(REALstringData, encoding) == 16, "encoding");
static_assert(offsetof(REALstringData, private2) == 32, "private2");
