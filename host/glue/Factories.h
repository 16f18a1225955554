#pragma once

#include "host/glue/ClassId.h"
#include "host/sdk/PluginTypes.h"

namespace abc {
class DrawArea;
class TTFText;
class ArrayMath;
}  // namespace abc

// Host objects for wrappers.  A null wrapper gives null; owner and parent are
// stored with a lock each.  The factories that take a wrapper the caller owned
// delete it when the host makes no object.

// A new host object of the class, its block holding owner and parent; null if
// the host made none.
REALobject newHostObject(const char *className, ClassId root, REALobject owner, REALobject parent);

REALobject NewTTFTextXPG(abc::TTFText *text, REALobject owner, REALobject parent);
REALobject NewArrayXPG(abc::ArrayMath *array, REALobject owner, REALobject parent);
// ownsCanvas: the host object deletes the wrapper (and so the canvas it owns).
REALobject NewDrawAreaXPG(abc::DrawArea *canvas, REALobject owner, REALobject parent,
                          bool ownsCanvas);
