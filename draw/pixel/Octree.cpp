#include "draw/pixel/Octree.h"

#include <climits>

Octree::Octree(int count, int depth)
    : root(nullptr), reducible(), leafCount(0), colorCount(count), maxDepth(depth) {
    if (colorCount > 256) colorCount = 256;
    if (colorCount < 1) colorCount = 1;
    if (maxDepth < 1 || maxDepth > 8) maxDepth = 8;
    root = createNode(0);
}

Octree::~Octree() {
    deleteNode(root);
}

Octree::Node *Octree::createNode(int level) {
    Node *node = new Node;
    if (level >= maxDepth) {
        node->leaf = true;
        ++leafCount;
    } else {
        node->nextReducible = reducible[level];
        reducible[level] = node;
    }
    return node;
}

void Octree::deleteNode(Node *node) {
    if (!node) return;
    for (Node *child : node->children) deleteNode(child);
    delete node;
}

int Octree::childIndex(int r, int g, int b, int level) {
    int shift = 7 - level;
    return (((r >> shift) & 1) << 2) | (((g >> shift) & 1) << 1) | ((b >> shift) & 1);
}

void Octree::AddColor(int color) {
    int r = (color >> 16) & 0xff, g = (color >> 8) & 0xff, b = color & 0xff;
    Node *node = root;
    for (int level = 0; !node->leaf; ++level) {
        Node *&child = node->children[childIndex(r, g, b, level)];
        if (!child) child = createNode(level + 1);
        node = child;
    }
    node->pixelCount++;
    node->red += r;
    node->green += g;
    node->blue += b;
    while (leafCount > colorCount) {
        Node *n = GetReducible();
        if (!n) break;
        reduceNode(n);
    }
}

Octree::Node *Octree::GetReducible() {
    for (int level = maxDepth - 1; level >= 0; --level) {
        Node *node = reducible[level];
        if (node) {
            reducible[level] = node->nextReducible;
            node->nextReducible = nullptr;
            return node;
        }
    }
    return nullptr;
}

// The children of the deepest reducible node are all leaves.
void Octree::reduceNode(Node *node) {
    int children = 0;
    for (Node *&child : node->children) {
        if (!child) continue;
        node->pixelCount += child->pixelCount;
        node->red += child->red;
        node->green += child->green;
        node->blue += child->blue;
        delete child;
        child = nullptr;
        ++children;
    }
    node->leaf = true;
    leafCount += 1 - children;
}

int Octree::GetPalette(int *palette) {
    int count = 0;
    listLeaves(root, palette, count);
    return count;
}

void Octree::listLeaves(Node *node, int *palette, int &count) {
    if (node->leaf) {
        int n = node->pixelCount > 0 ? node->pixelCount : 1;
        int r = (int)((node->red + n / 2) / n);
        int g = (int)((node->green + n / 2) / n);
        int b = (int)((node->blue + n / 2) / n);
        node->color = (r << 16) | (g << 8) | b;
        node->index = count;
        if (palette) palette[count] = node->color;
        ++count;
        return;
    }
    for (Node *child : node->children)
        if (child) listLeaves(child, palette, count);
}

int Octree::MapColor(int color) const {
    int r = (color >> 16) & 0xff, g = (color >> 8) & 0xff, b = color & 0xff;
    const Node *node = root;
    for (int level = 0; !node->leaf; ++level) {
        const Node *child = node->children[childIndex(r, g, b, level)];
        if (!child) {
            int best = 0, bestDistance = INT_MAX;
            FindNearest(root, r, g, b, best, bestDistance);
            return best;
        }
        node = child;
    }
    return node->index;
}

void Octree::FindNearest(const Node *node, int r, int g, int b, int &best,
                         int &bestDistance) const {
    if (node->leaf) {
        int dr = ((node->color >> 16) & 0xff) - r;
        int dg = ((node->color >> 8) & 0xff) - g;
        int db = (node->color & 0xff) - b;
        int distance = dr * dr + dg * dg + db * db;
        if (distance < bestDistance) {
            bestDistance = distance;
            best = node->index;
        }
        return;
    }
    for (const Node *child : node->children)
        if (child) FindNearest(child, r, g, b, best, bestDistance);
}
