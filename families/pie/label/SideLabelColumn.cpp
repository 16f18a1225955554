#include "families/pie/label/SideLabelColumn.h"

#include <algorithm>

namespace {

// Positions and heights are kept within this, so that sums of a few of them
// stay within an int.
const int kLimit = 1 << 24;

int limit(int v) {
    return std::max(std::min(v, kLimit), -kLimit);
}

}  // namespace

SideLabelColumn::SideLabelColumn(int topBound, int bottomBound)
    : topBound(limit(topBound)), bottomBound(limit(bottomBound)) {}

void SideLabelColumn::add(int y, int height) {
    labels.push_back({limit(y), std::max(limit(height), 0), 0});
}

void SideLabelColumn::move(int i, int by) {
    labels[i].y += by;
    labels[i].shift += by;
}

int SideLabelColumn::roomAbove(int i) const {
    if (i == 0) return labels[0].y - topBound;
    return labels[i].y - labels[i - 1].y - labels[i - 1].height;
}

void SideLabelColumn::spread() {
    if (labels.empty()) return;
    placeFirst();
    for (int i = 1; i < size(); ++i) {
        const Label &above = labels[i - 1];
        placeBelow(i, above.y + above.height - labels[i].y);
    }
}

void SideLabelColumn::placeFirst() {
    Label &first = labels[0];
    if (first.y < topBound) move(0, topBound - first.y);
    int excess = first.y + first.height - bottomBound;
    if (excess > 0) move(0, -std::min(excess, std::max(first.y - topBound, 0)));
}

void SideLabelColumn::placeBelow(int i, int overlap) {
    Label &label = labels[i];
    int room = bottomBound - label.y - label.height;
    if (overlap <= 0) {
        // Clear of the label above: it only has to keep above the bottom bound,
        // and pushes the labels above when the gap is not enough.
        if (room < 0 && room < overlap) {
            int other = 0;
            move(i, overlap - moveUp(i - 1, overlap - room, other, 0));
        } else if (room < 0) {
            move(i, room);
        }
    } else {
        // The overlap is shared: this label goes down by its part, the one
        // above goes up by the rest, no more than it has already moved allows.
        int own = std::min(overlap / 2, room);
        int above = overlap - own;
        int most = (overlap + labels[i - 1].shift + 1) / 2;
        if (above > most) {
            own += above - most;
            above = most;
        }
        if (room < own) {
            above += own - room;
            own = room;
        }
        int gap = roomAbove(i - 1);
        if (gap < above && i >= 2) gap += moveUp(i - 2, above - gap, own, room);
        int moved = std::max(std::min(gap, above), 0);
        move(i - 1, -moved);
        move(i, overlap - moved);
    }
    // What could not be made room for stays at the bottom bound, overlapping.
    int lowest = std::max(bottomBound - label.height, topBound);
    if (label.y + label.height > bottomBound && label.y > lowest) move(i, lowest - label.y);
}

int SideLabelColumn::moveUp(int i, int amount, int &other, int maxOther) {
    // Walks up while the room above each label is not enough, then moves the
    // labels from the highest one down, each by what the ones above made room for.
    struct Step {
        int amount;
        int gap;
    };
    std::vector<Step> steps;
    for (int j = i; j >= 0; --j) {
        int half = (amount + labels[j].shift + 1 + other) / 2;
        if (amount > half) {
            other += amount - half;
            amount = half;
            if (other > maxOther) {
                amount += other - maxOther;
                other = maxOther;
            }
        }
        int gap = roomAbove(j);
        steps.push_back({amount, gap});
        if (j == 0 || amount <= gap) break;
        amount -= gap;
    }
    int movedAbove = 0;
    for (int k = (int)steps.size() - 1; k >= 0; --k) {
        int gap = steps[k].gap + (k + 1 < (int)steps.size() ? movedAbove : 0);
        int moved = std::min(steps[k].amount, gap);
        if (moved < 1) moved = 0;
        move(i - k, -moved);
        movedAbove = moved;
    }
    return movedAbove;
}
