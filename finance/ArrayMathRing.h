#pragma once

// The window of the moving operations: the last `size` real values of a
// series, zero-filled so that running sums can always take off what a push
// replaces.
class ArrayMathRing {
public:
    explicit ArrayMathRing(int size);
    ~ArrayMathRing();
    ArrayMathRing(const ArrayMathRing &) = delete;
    ArrayMathRing &operator=(const ArrayMathRing &) = delete;

    // Stores v over the oldest item and returns that item (0 until full).
    double push(double v) {
        double old = items[next];
        items[next] = v;
        if (++next == size) next = 0;
        ++count;
        return old;
    }
    bool isFull() const { return count >= size; }
    // The item the next push replaces: once full, the one size - 1 pushes back.
    double oldest() const { return items[next]; }
    const double *getItems() const { return items; }
    int getSize() const { return size; }

private:
    double *items;
    int size;
    int next;
    long long count;
};
