#pragma once

#include <vector>

// A point of a gradient: its place from 0 to 1 and a plain colour word.
struct GradientStop {
    double offset;
    int color;
};

// The colours of a gradient from its start to its end, sampled evenly.  The
// tables come from the raster's own builders, so a vector gradient shows the
// colours the raster paints.
class ColorRamp {
public:
    // Entries beyond this are not needed by any output: a finer ramp is cut.
    static constexpr int kMaxEntries = 4096;

    ColorRamp() {}
    // Gradient pairs (position, colour) as the raster's gradient brushes build them.
    static ColorRamp ofGradient(const int *pairs, int n);
    // A plain colour under a lighting table (position, brightness in 1/1024).
    static ColorRamp ofLighting(int color, const int *lighting, int n);

    const std::vector<int> &entries() const { return table; }
    int size() const { return (int)table.size(); }
    bool isEmpty() const { return table.empty(); }
    // True when some entry isn't opaque.
    bool hasAlpha() const;
    // The same ramp with every colour made darker or lighter by k / 1024.
    ColorRamp brightened(int k) const;
    // The raster wraps a repeating ramp after its last entry: the period is
    // this many gradient lengths (from the first entry to the last).
    double period() const;
    // Few stops whose straight mixes stay within `tolerance` levels of every
    // entry on each channel.  A repeating ramp's stops cover one period.
    std::vector<GradientStop> stops(bool periodic, int tolerance) const;
    // The entries as samples of one period, for outputs that sample: a
    // repeating ramp holds its last colour to the period's end.
    std::vector<int> samples(bool periodic) const;

private:
    explicit ColorRamp(std::vector<int> entries) : table(std::move(entries)) {}

    std::vector<int> table;
};
