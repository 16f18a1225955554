#include "text/font/cache/GlyphCache.h"

GlyphCache::GlyphCache(long long b)
    : budget(b),
      total(0),
      itemCount(0),
      idleCount(0),
      oldest(nullptr),
      newest(nullptr),
      trimming(false) {}

GlyphCache::~GlyphCache() {
    // Items belong to their owners, which go first; none should be left.
    while (oldest) unqueue(oldest);
}

void GlyphCache::add(Item *item, long long bytes) {
    item->bytes = bytes;
    total += bytes;
    ++itemCount;
    trim();
}

void GlyphCache::remove(Item *item) {
    unqueue(item);
    total -= item->bytes;
    item->bytes = 0;
    --itemCount;
}

void GlyphCache::busy(Item *item) {
    unqueue(item);
}

void GlyphCache::idle(Item *item) {
    if (item->queued) return;
    item->queued = true;
    item->older = newest;
    item->newer = nullptr;
    if (newest)
        newest->newer = item;
    else
        oldest = item;
    newest = item;
    ++idleCount;
}

void GlyphCache::unqueue(Item *item) {
    if (!item->queued) return;
    (item->older ? item->older->newer : oldest) = item->newer;
    (item->newer ? item->newer->older : newest) = item->older;
    item->older = item->newer = nullptr;
    item->queued = false;
    --idleCount;
}

void GlyphCache::trim() {
    // Evicting a list releases its faces, which may queue them: not a reason
    // to start over from inside.
    if (budget <= 0 || trimming) return;
    trimming = true;
    // Each item is looked at once at most: one that can't go moves to the back.
    for (int tries = idleCount; total > budget && oldest && tries > 0; --tries) {
        Item *item = oldest;
        unqueue(item);
        if (!item->evict()) idle(item);
    }
    trimming = false;
}
