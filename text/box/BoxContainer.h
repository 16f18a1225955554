#pragma once

// The chart a box stands on, as far as the box needs to know it: its size and
// its properties (getProperty(0x100 + alignment) is the radius of the rounded
// frame at that corner).
class BoxContainer {
public:
    virtual int getWidth() const = 0;
    virtual int getHeight() const = 0;
    virtual double getProperty(int code) = 0;

protected:
    virtual ~BoxContainer() {}
};
