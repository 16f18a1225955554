#pragma once

class TickMap;

// What the painter reads of an axis's scale: where a value lies and the ticks.
class AxisScaleView {
public:
    // Pixel offset of the value from the low end of the axis.
    virtual double getCoor(double value) const = 0;
    // Pixels from the low end to the high end.
    virtual int getLength() const = 0;
    // The ticks in value order; painting keeps each label's text box in them.
    virtual TickMap &paintedTicks() = 0;

protected:
    virtual ~AxisScaleView() {}
};
