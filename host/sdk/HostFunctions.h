#pragma once

// The host's runtime functions as the plug-in calls them.  Each is a stub that
// asks the resolver for its host name on first use and calls through; when the
// host has no such function the stub does nothing and returns 0.

#include "host/sdk/PluginTypes.h"

typedef void *(*HostResolver)(const char *entryName);

// The resolver of the host that loaded us; a new resolver forgets what the
// stubs found before.
void setHostResolver(HostResolver resolver);
HostResolver hostResolver();
// The host function of a name, or null; the stubs go through this.
void *resolveHostFunction(const char *hostName);

// The host functions, in the order of the table in HostFunctions.cpp:
// stub name, host name, result, parameters.
#define VISTREL_HOST_FUNCTIONS(X)                                                                 \
    X(RegisterPluginVersion, "RegisterPluginVersion", void, (int version), (version))             \
    X(REALGetRBVersion, "REALGetRBVersion", double, (void), ())                                   \
    X(REALRegisterClass, "PluginRegisterClass", void, (REALclassDefinition * def), (def))         \
    X(REALRegisterModule, "PluginRegisterModule", void, (void *def), (def))                       \
    X(REALnewInstance, "PluginNewInstance", REALobject, (const char *className), (className))     \
    X(REALRaiseException, "RuntimeRaiseException", void, (REALobject exc), (exc))                 \
    X(REALObjectIsA, "RuntimeObjectIsa", RBBoolean, (REALobject obj, REALclassRef cls),           \
      (obj, cls))                                                                                 \
    X(REALGetClassRef, "pluginObjectType", REALclassRef, (const char *className), (className))    \
    X(REALLoadObjectMethod, "REALLoadObjectMethod", void *,                                       \
      (REALobject obj, const char *prototype), (obj, prototype))                                  \
    X(REALLoadFrameworkMethod, "REALLoadGlobalMethod", void *,                                    \
      (const char *module, const char *prototype), (module, prototype))                           \
    X(REALCreateArray, "RuntimeArrayCreateSingleDimBoundedArray", REALarray,                      \
      (int type, RBInteger upperBound), (type, upperBound))                                       \
    X(REALGetArrayUBound, "RuntimeUBound", RBInteger, (void *array), (array))                     \
    X(REALGetStringData, "PluginGetStringData", RBBoolean,                                        \
      (REALstring s, uint32_t encoding, REALstringData * out), (s, encoding, out))                \
    X(REALDisposeStringData, "PluginDisposeStringData", void, (REALstringData * data), (data))    \
    X(REALGetStringContents, "StringGetCString", const void *, (REALstring s), (s))               \
    X(REALNewVariantString, "StringToVariant", REALobject, (REALstring s), (s))                   \
    X(REALNewMemoryBlock, "newMemoryBlock", REALmemoryBlock, (int bytes), (bytes))                \
    X(REALMemoryBlockGetPtr, "memoryBlockGetPtr", void *, (REALmemoryBlock mb), (mb))             \
    X(REALMemoryBlockGetSize, "memoryBlockGetSize", RBInteger, (REALmemoryBlock mb), (mb))        \
    X(REALUnlockPictureDescription, "unlockPictureDescription", void, (REALobject picture),       \
      (picture))                                                                                  \
    X(REALCallFunctionWithExceptionHandler, "PluginCallFunctionWithExceptionHandler", REALobject, \
      (void (*fn)(void *), void *data), (fn, data))                                               \
    X(REALGetPropValueBoolean, "REALGetPropValueBool", RBBoolean,                                 \
      (REALobject obj, const char *name, RBBoolean *value), (obj, name, value))                   \
    X(REALLockObject, "REALLockObject", void, (REALobject obj), (obj))                            \
    X(REALUnlockObject, "REALUnlockObject", void, (REALobject obj), (obj))                        \
    X(REALLockString, "REALLockString", void, (REALstring s), (s))                                \
    X(REALUnlockString, "REALUnlockString", void, (REALstring s), (s))                            \
    X(REALBuildStringWithEncoding, "REALBuildStringWithEncoding", REALstring,                     \
      (const char *bytes, int byteCount, uint32_t encoding), (bytes, byteCount, encoding))        \
    X(REALConvertString, "REALConvertString", REALstring, (REALstring s, uint32_t encoding),      \
      (s, encoding))                                                                              \
    X(REALGetStringEncoding, "REALGetStringEncoding", uint32_t, (REALstring s), (s))              \
    X(REALBuildPictureFromBuffer, "REALBuildPictureFromBuffer", REALobject,                       \
      (uint32_t width, uint32_t height, int pixelType, void *buffer, uint32_t rowBytes),          \
      (width, height, pixelType, buffer, rowBytes))                                               \
    X(REALGetPropValueInteger, "REALGetPropValueInteger", RBBoolean,                              \
      (REALobject obj, const char *name, RBInteger *value), (obj, name, value))                   \
    X(REALSetPropValueInteger, "REALSetPropValueInteger", RBBoolean,                              \
      (REALobject obj, const char *name, RBInteger value), (obj, name, value))                    \
    X(REALSetPropValueString, "REALSetPropValueString", RBBoolean,                                \
      (REALobject obj, const char *name, REALstring value), (obj, name, value))                   \
    X(PluginColorArrayGetProc, "PluginColorArrayGetProc", void *, (REALarray array), (array))     \
    X(PluginDoubleArrayGetProc, "PluginDoubleArrayGetProc", void *, (REALarray array), (array))   \
    X(PluginIntegerArrayGetProc, "PluginIntegerArrayGetProc", void *, (REALarray array), (array)) \
    X(PluginObjectArrayGetProc, "PluginObjectArrayGetProc", void *, (REALarray array), (array))   \
    X(PluginStringArrayGetProc, "PluginStringArrayGetProc", void *, (REALarray array), (array))   \
    X(PluginDoubleArraySetProc, "PluginDoubleArraySetProc", void *, (REALarray array), (array))   \
    X(PluginIntegerArraySetProc, "PluginIntegerArraySetProc", void *, (REALarray array), (array)) \
    X(PluginDoubleArrayInsertProc, "PluginDoubleArrayInsertProc", void *, (REALarray array),      \
      (array))                                                                                    \
    X(PluginObjectArrayInsertProc, "PluginObjectArrayInsertProc", void *, (REALarray array),      \
      (array))

#define VISTREL_DECLARE_HOST_FUNCTION(stub, hostName, R, params, args) R stub params;
VISTREL_HOST_FUNCTIONS(VISTREL_DECLARE_HOST_FUNCTION)
#undef VISTREL_DECLARE_HOST_FUNCTION

// Array elements go through a function the host hands out for each array:
// "Plugin<T>ArrayGetProc" and its like give it.
RBColor REALGetArrayValueColor(REALarray array, RBInteger index);
double REALGetArrayValueDouble(REALarray array, RBInteger index);
RBInteger REALGetArrayValueInteger(REALarray array, RBInteger index);
REALobject REALGetArrayValueObject(REALarray array, RBInteger index);
REALstring REALGetArrayValueString(REALarray array, RBInteger index);
void REALSetArrayValueDouble(REALarray array, RBInteger index, double value);
void REALSetArrayValueInteger(REALarray array, RBInteger index, RBInteger value);
void REALInsertArrayValueDouble(REALarray array, RBInteger index, double value);
void REALInsertArrayValueObject(REALarray array, RBInteger index, REALobject value);

// The element getter of one array, fetched once for a loop over all its items.
typedef double (*DoubleElementGetter)(REALarray array, RBInteger index);
typedef RBInteger (*IntegerElementGetter)(REALarray array, RBInteger index);
DoubleElementGetter doubleElementGetter(REALarray array);
IntegerElementGetter integerElementGetter(REALarray array);
