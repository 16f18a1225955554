#pragma once

// The line that joins a label to its sector's rim, as a path of points.
class JoinLine {
public:
    static const int kMaxPoints = 5;

    // Circle layout: straight from the rim to the label's anchor.
    JoinLine(int rimX, int rimY, int labelX, int labelY);
    // Side layout: out of the rim by gap along the radius to an elbow at
    // (elbowX, elbowY), level, then at 45 degrees, then level into the label
    // that stands gap beyond its last bend.  A label within a quarter of its
    // height of the elbow's level is joined level.  leftColumn: the label
    // stands left of the pie, its anchor on its right side.
    JoinLine(int rimX, int rimY, int elbowX, int elbowY, int labelX, int labelY, int labelHeight,
             int gap, bool leftColumn);

    int size() const { return count; }
    int x(int i) const { return px[i]; }
    int y(int i) const { return py[i]; }

private:
    void add(int x, int y);

    int count;
    int px[kMaxPoints];
    int py[kMaxPoints];
};
