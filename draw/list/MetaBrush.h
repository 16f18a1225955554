#pragma once

#include <utility>
#include <vector>

#include "draw/list/MetaDraw.h"
#include "draw/list/MetaRecordCall.h"

class MetaDrawImpl;

// A colour definition kept out of the stream until the colour is first used.
// Brushes are owned by the list's brush map and found by their handle.
class MetaBrush {
public:
    virtual ~MetaBrush() {}
    void destroy() { delete this; }
    // Writes the definition into `target`, the outermost list, unless the same
    // record is already there.  The hints are the canvas size while a SetSize
    // colour is registered, else -1.
    virtual void emit(MetaDrawImpl *target, int widthHint, int heightHint) = 0;
    // The stream was cut back to `pos`: records from there on are gone.
    virtual void forgetFrom(int pos) { (void)pos; }
};

// A brush whose definition is one record, written again only when the words
// of that record change.
class MetaRecordBrush : public MetaBrush {
public:
    void forgetFrom(int pos) override;

protected:
    MetaRecordBrush() : lastTarget(nullptr), lastPos(-1), lastOpcode(0) {}
    // A record of kind `op` with the arguments of its back-end operation.
    // Colours must already be registered with the target.
    template <MetaOpcode op, class... A>
    void emitRecord(MetaDrawImpl *target, A &&...args) {
        std::vector<int> encoded;
        MetaRecordKind<op>::Call::encode(encoded, std::forward<A>(args)...);
        emitWords(target, op, encoded);
    }
    // Argument words already encoded in the layout of `opcode`.
    void emitWords(MetaDrawImpl *target, unsigned opcode, std::vector<int> &encoded);

private:
    MetaDrawImpl *lastTarget;
    int lastPos;
    unsigned lastOpcode;
    std::vector<int> lastWords;
};

// Using the handle registers the colours it refers to; writes nothing itself.
class RegisterDependentBrush : public MetaBrush {
public:
    explicit RegisterDependentBrush(IntArray colors);
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    std::vector<int> colors;
};

class MetaDashLineBrush : public MetaRecordBrush {
public:
    MetaDashLineBrush(int handle, int color, int pattern)
        : handle(handle), color(color), pattern(pattern) {}
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle, color, pattern;
};

class MetaBrightnessAdjustmentBrush : public MetaRecordBrush {
public:
    MetaBrightnessAdjustmentBrush(int handle, int source, double factor)
        : handle(handle), source(source), factor(factor) {}
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle, source;
    double factor;
};

// Fractions of the canvas: absolute LinearGradientColor when the size is known.
class MetaRelativeLinearGradientBrush : public MetaRecordBrush {
public:
    MetaRelativeLinearGradientBrush(int handle, const double box[4], bool periodic, IntArray pairs);
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle;
    double box[4];
    bool periodic;
    std::vector<int> pairs;
};

// Fractions of the canvas: absolute LinearLightingColor when the size is known.
class MetaRelativeLinearLightingBrush : public MetaRecordBrush {
public:
    MetaRelativeLinearLightingBrush(int handle, int color, const double box[4], bool periodic,
                                    IntArray lighting);
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle, color;
    double box[4];
    bool periodic;
    std::vector<int> lighting;
};

// A ZoneColor whose boundary is a data value mapped through a scale.
class MetaXYZoneBrush : public MetaRecordBrush {
public:
    MetaXYZoneBrush(int handle, const MetaDraw::PixelScale *scale, bool vertical, double value,
                    int before, int after)
        : handle(handle),
          scale(scale),
          vertical(vertical),
          value(value),
          before(before),
          after(after) {}
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle;
    const MetaDraw::PixelScale *scale;
    bool vertical;
    double value;
    int before, after;
};

// A bar of colours along an axis: a LinearGradientColor from the pixel of the
// first value to the pixel of the last.
class MetaScaleColorBrush : public MetaRecordBrush {
public:
    MetaScaleColorBrush(int handle, const MetaDraw::PixelScale *scale, bool vertical,
                        DoubleArray values, IntArray colors);
    void emit(MetaDrawImpl *target, int widthHint, int heightHint) override;

private:
    int handle;
    const MetaDraw::PixelScale *scale;
    bool vertical;
    std::vector<double> values;
    std::vector<int> colors;
};
