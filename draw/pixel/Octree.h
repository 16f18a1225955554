#pragma once

// Colour reduction tree: one level per bit of the channels, eight children a
// node.  Leaves are folded into their parents, the deepest first, to keep at
// most colorCount of them.
class Octree {
public:
    explicit Octree(int colorCount, int maxDepth = 8);
    ~Octree();
    Octree(const Octree &) = delete;
    Octree &operator=(const Octree &) = delete;

    void AddColor(int color);
    // Lists the mean colour of each leaf and numbers the leaves; returns the count.
    int GetPalette(int *palette);
    // The leaf index of a colour; only valid after GetPalette.
    int MapColor(int color) const;
    int getLeafCount() const { return leafCount; }

private:
    struct Node {
        bool leaf = false;
        int pixelCount = 0;
        long long red = 0, green = 0, blue = 0;
        int index = 0;
        int color = 0;  // the mean, set by GetPalette
        Node *children[8] = {};
        Node *nextReducible = nullptr;
    };

    Node *createNode(int level);
    void deleteNode(Node *node);
    Node *GetReducible();
    void reduceNode(Node *node);
    void listLeaves(Node *node, int *palette, int &count);
    void FindNearest(const Node *node, int r, int g, int b, int &best, int &bestDistance) const;
    static int childIndex(int r, int g, int b, int level);

    Node *root;
    Node *reducible[8];
    int leafCount;
    int colorCount;
    int maxDepth;
};
