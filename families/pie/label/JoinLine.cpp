#include "families/pie/label/JoinLine.h"

#include <algorithm>
#include <cstdlib>

JoinLine::JoinLine(int rimX, int rimY, int labelX, int labelY) : count(0) {
    add(rimX, rimY);
    add(labelX, labelY);
}

JoinLine::JoinLine(int rimX, int rimY, int elbowX, int elbowY, int labelX, int labelY,
                   int labelHeight, int gap, bool leftColumn)
    : count(0) {
    // Towards the label is +1 on the right of the pie, -1 on the left.
    int out = leftColumn ? -1 : 1;
    int bendX = labelX - out * gap;
    // The last bend never lies back past the elbow.
    if (((long long)bendX - elbowX) * out < 0) bendX = elbowX;
    long long rise = std::llabs((long long)labelY - elbowY);
    if (rise * 4 <= labelHeight) {
        labelY = elbowY;
        rise = 0;
    }
    int midX = (int)std::max(std::min(bendX - out * rise, (long long)1 << 30), -(1LL << 30));
    if (((long long)midX - elbowX) * out < 0) midX = elbowX;
    add(rimX, rimY);
    add(elbowX, elbowY);
    add(midX, elbowY);
    add(bendX, labelY);
    add(labelX, labelY);
}

void JoinLine::add(int x, int y) {
    if (count > 0 && px[count - 1] == x && py[count - 1] == y) return;
    px[count] = x;
    py[count] = y;
    ++count;
}
