#pragma once

#include "host/abc/Views.h"
#include "host/glue/HostValues.h"
#include "host/glue/ScaleFactor.h"
#include "host/sdk/PluginTypes.h"

namespace abc {
class Axis;
class BaseChart;
class DrawArea;
class Layer;
}  // namespace abc

// How one host argument becomes one engine argument: Host is the C type the
// host passes, in() the value the wrapper gets.  The "Px" forms are pixel
// measures and take the ScaleFactor.
namespace glue {

struct Int {
    using Host = RBInteger;
    static int in(Host v) { return (int)v; }
};
struct Px {
    using Host = RBInteger;
    static int in(Host v) { return scalePixels(v); }
};
// A pixel measure where a negative number means "automatic": left as it is.
struct PxAuto {
    using Host = RBInteger;
    static int in(Host v) { return v < 0 ? (int)v : scalePixels(v); }
};
// A pixel measure whose largest value means "not given": left as it is.
struct PxOrUnset {
    using Host = RBInteger;
    static int in(Host v) { return v == 0x7FFFFFFF ? (int)v : scalePixels(v); }
};
// A pie's label position: pixels from the rim below 32768 (inside when
// negative), and 32768 plus the pixels from the pie of the side columns, which
// stay within the low 15 bits.
struct LabelPos {
    using Host = RBInteger;
    static int in(Host v) {
        if (v < 32768) return scalePixels(v);
        int gap = scalePixels(v - 32768);
        return 32768 + (gap > 32767 ? 32767 : gap);
    }
};
struct Dbl {
    using Host = double;
    static double in(Host v) { return v; }
};
struct PxD {
    using Host = double;
    static double in(Host v) { return scalePixels(v); }
};
struct Bool {
    using Host = RBBoolean;
    static bool in(Host v) { return v != 0; }
};
// An engine colour word.
struct Color {
    using Host = RBInteger;
    static int in(Host v) { return (int)v; }
};
// The host's Color: widened without a sign, then taken as the integer form.
struct ColorC {
    using Host = RBColor;
    static int in(Host v) { return Color::in(static_cast<RBInteger>(static_cast<uint64_t>(v))); }
};
struct Str {
    using Host = REALstring;
    static RBText in(Host v) { return RBText(v); }
};
// The first byte of a host string; 0 for an empty one.
struct Char {
    using Host = REALstring;
    static char in(Host v) {
        RBText t(v);
        return t.str().empty() ? 0 : t.str()[0];
    }
};
struct Doubles {
    using Host = REALarray;
    static RBDoubleArray in(Host v) { return RBDoubleArray(v); }
};
struct PxDoubles {
    using Host = REALarray;
    static RBDoubleArray in(Host v) { return RBDoubleArray(v, true); }
};
struct Ints {
    using Host = REALarray;
    static RBIntArray in(Host v) { return RBIntArray(v); }
};
struct PxInts {
    using Host = REALarray;
    static RBIntArray in(Host v) { return RBIntArray(v, true); }
};
// A host Color array as engine colour words.
struct Colors {
    using Host = REALarray;
    static RBColorArray in(Host v) { return RBColorArray(v); }
};
struct Strings {
    using Host = REALarray;
    static RBStringArray in(Host v) { return RBStringArray(v); }
};
// A MemoryBlock's bytes, borrowed for the call.
struct Bytes {
    using Host = REALobject;
    static abc::MemBlock in(Host v) { return memoryBlockBytes(v); }
};
// A VSDrawAreaXPG, or null.
struct Canvas {
    using Host = REALobject;
    static abc::DrawArea *in(Host v);
};
// A VSAxisXPG, or null.
struct AxisObj {
    using Host = REALobject;
    static abc::Axis *in(Host v);
};
// A VSLayerXPG, or null.
struct LayerObj {
    using Host = REALobject;
    static abc::Layer *in(Host v);
};
// A VSBaseChartXPG, or null.
struct ChartObj {
    using Host = REALobject;
    static abc::BaseChart *in(Host v);
};
// The numbers of a VSArrayXPG, borrowed for the call.
struct ArrayValues {
    using Host = REALobject;
    static abc::DoubleArray in(Host v);
};

}  // namespace glue
