#pragma once

class DrawArea;

// Base of everything a chart paints in z order.  Charts sort their objects with
// std::stable_sort and comparator(), so equal z orders keep their order of addition.
class DrawObj {
public:
    DrawObj() : zOrder(0) {}
    virtual ~DrawObj() {}
    virtual void release() = 0;
    virtual void setZOrder(int z) { zOrder = z; }
    virtual int getZOrder() const { return zOrder; }
    virtual bool operator<(const DrawObj &other) const { return zOrder < other.zOrder; }
    virtual void paint(DrawArea *d) = 0;

    static bool comparator(const DrawObj *a, const DrawObj *b) { return *a < *b; }

protected:
    int zOrder;
};
