#pragma once

#include <vector>

// One column of side labels, from top to bottom, spread so that they don't
// overlap and stay between the bounds.  Each label is a box at a y of its own
// choice (its natural place) with a height; spreading moves labels up and
// down and keeps their shift, how far each has moved.  Overlaps are shared
// between neighbours, and a label that has already gone far gives less.  A
// column too tall for the bounds presses its lowest labels against the bottom
// bound, overlapping.
class SideLabelColumn {
public:
    SideLabelColumn(int topBound, int bottomBound);

    // The next label down the column.
    void add(int y, int height);
    void spread();

    int size() const { return (int)labels.size(); }
    int getY(int i) const { return labels[i].y; }
    int getShift(int i) const { return labels[i].shift; }

private:
    struct Label {
        int y;
        int height;
        int shift;
    };

    void placeFirst();
    // Label i, whose top overlaps the bottom of the label above by overlap
    // (or is that far clear of it when overlap is negative).
    void placeBelow(int i, int overlap);
    // Moves labels i and up by up to amount, each by what the room above it
    // allows; other and maxOther are what the label below takes of a surplus
    // and the most it can take.  Returns how far label i moved.
    int moveUp(int i, int amount, int &other, int maxOther);
    void move(int i, int by);
    int roomAbove(int i) const;

    std::vector<Label> labels;
    int topBound;
    int bottomBound;
};
