#include "host/glue/Factories.h"

#include "host/abc/ArrayMath.h"
#include "host/abc/DrawArea.h"
#include "host/abc/TTFText.h"
#include "host/glue/Blocks.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Debugging.h"
#include "host/glue/Lifetime.h"
#include "host/sdk/HostFunctions.h"

REALobject newHostObject(const char *className, ClassId root, REALobject owner, REALobject parent) {
    REALobject obj = REALnewInstance(className);
    if (!obj) return nullptr;
    auto *block = blockOf<HandleBlock<void>>(obj, root);
    replaceRef(block->owner, owner);
    replaceRef(block->parent, parent);
    if (getDebugging()) LogMessage("return new", static_cast<const void *>(obj));
    return obj;
}

namespace {

// An object that owns its wrapper: the wrapper dies with the object, or now if
// there is no object.
template <class W>
REALobject newOwningObject(const char *className, ClassId root, W *wrapper, REALobject owner,
                           REALobject parent) {
    if (!wrapper) return nullptr;
    REALobject obj = newHostObject(className, root, owner, parent);
    if (!obj) {
        delete wrapper;
        return nullptr;
    }
    auto *block = blockOf<HandleBlock<W>>(obj, root);
    // A host that runs the Constructor for a new instance made a wrapper of its own.
    delete block->handle;
    block->handle = wrapper;
    return obj;
}

}  // namespace

REALobject NewTTFTextXPG(abc::TTFText *text, REALobject owner, REALobject parent) {
    return newOwningObject("VSTTFTextXPG", ClassId::TTFText, text, owner, parent);
}

REALobject NewArrayXPG(abc::ArrayMath *array, REALobject owner, REALobject parent) {
    return newOwningObject("VSArrayXPG", ClassId::Array, array, owner, parent);
}

REALobject NewDrawAreaXPG(abc::DrawArea *canvas, REALobject owner, REALobject parent,
                          bool ownsCanvas) {
    if (!canvas) return nullptr;
    REALobject obj = newHostObject("VSDrawAreaXPG", ClassId::DrawArea, owner, parent);
    if (!obj) {
        if (ownsCanvas) delete canvas;
        return nullptr;
    }
    auto *block = blockOf<DrawAreaBlock>(obj, ClassId::DrawArea);
    // A host that runs the Constructor for a new instance made a canvas of its own.
    if (block->ownsCanvas) delete block->handle;
    block->handle = canvas;
    block->ownsCanvas = ownsCanvas;
    return obj;
}
