#pragma once

// The font driver's memory of rendered glyphs, sized faces and fall-back
// lists, within a budget of bytes.  What a text holds is never dropped; what
// no text holds waits in a queue, least recently released first, and is
// dropped from the front when a new item takes the total over the budget.
// Used under the font mutex.
class GlyphCache {
public:
    // Something the cache keeps: the owner tells the cache when its users come
    // and go, and the cache asks it to go when the budget needs the room.
    class Item {
    public:
        virtual ~Item() {}
        // Takes itself out of its owner's tables and deletes itself; false
        // when it can't go yet.
        virtual bool evict() = 0;

    private:
        friend class GlyphCache;
        Item *older = nullptr;
        Item *newer = nullptr;
        bool queued = false;
        long long bytes = 0;
    };

    // A budget of 0 or less drops nothing.
    explicit GlyphCache(long long budget);
    ~GlyphCache();
    GlyphCache(const GlyphCache &) = delete;
    GlyphCache &operator=(const GlyphCache &) = delete;

    void setBudget(long long bytes) { budget = bytes; }
    long long getBudget() const { return budget; }
    // Bytes of every item kept, held or not.
    long long getBytes() const { return total; }
    int getItemCount() const { return itemCount; }
    int getIdleCount() const { return idleCount; }

    // A new item, with no user yet, and then the room made for it.
    void add(Item *item, long long bytes);
    // An item leaving (its destructor calls this).
    void remove(Item *item);
    // The item's first user came, or its last went.
    void busy(Item *item);
    void idle(Item *item);
    // Drops idle items, oldest first, until the total is within the budget.
    void trim();

private:
    void unqueue(Item *item);

    long long budget;
    long long total;
    int itemCount;
    int idleCount;
    Item *oldest;
    Item *newest;
    bool trimming;
};
