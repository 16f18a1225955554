#include "draw/canvas/GlobalResources.h"

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/canvas/TextAntiAlias.h"
#include "foundation/CLocale.h"
#include "foundation/Mutex.h"

namespace {

qlx::Mutex resourceMutex;
// Held while a shared canvas is read: reading replays its list into its raster.
qlx::Mutex sharedReadMutex;
std::map<std::string, std::vector<char>> dataMap;
std::map<std::string, DrawArea *> drawAreaMap;
std::map<std::string, std::string> settings;

// A value computed once per process from a setting.  Read without the lock
// first, then checked again under it.
class CachedSetting {
public:
    typedef int (*Builder)(const char *text, bool present);
    CachedSetting(const char *name, Builder builder) : name(name), builder(builder) {}

    int get() {
        if (ready.load(std::memory_order_acquire)) return value;
        qlx::MutexLock lock(resourceMutex);
        if (!ready.load(std::memory_order_relaxed)) {
            auto it = settings.find(name);
            bool present = it != settings.end();
            value = builder(present ? it->second.c_str() : nullptr, present);
            ready.store(true, std::memory_order_release);
        }
        return value;
    }

private:
    const char *name;
    Builder builder;
    int value = 0;
    std::atomic<bool> ready{false};
};

CachedSetting pixelLimit("@PixelLimit", [](const char *text, bool) {
    return GlobalResources::parseLimit(text, 125000000);
});
CachedSetting fileLimit("@FileLimit", [](const char *text, bool) {
    return GlobalResources::parseLimit(text, 200000000);
});
CachedSetting glyphCacheLimit("@GlyphCacheLimit", [](const char *text, bool) {
    return GlobalResources::parseLimit(text, 64 << 20);
});
CachedSetting defaultTextAA("@TextAA", [](const char *text, bool) {
    return TextAntiAlias::parseSetting(text);
});

}  // namespace

void GlobalResources::setData(const char *id, const char *data, int length) {
    if (!id) return;
    qlx::MutexLock lock(resourceMutex);
    if (!data) {
        dataMap.erase(id);
        return;
    }
    dataMap[id].assign(data, data + (length > 0 ? length : 0));
}

char *GlobalResources::copyData(const char *id, int *length) {
    *length = 0;
    if (!id || !*id) return nullptr;
    qlx::MutexLock lock(resourceMutex);
    auto it = dataMap.find(id);
    if (it == dataMap.end()) return nullptr;
    char *copy = (char *)malloc(it->second.size() + 1);
    if (!copy) return nullptr;
    if (!it->second.empty()) memcpy(copy, it->second.data(), it->second.size());
    *length = (int)it->second.size();
    return copy;
}

void GlobalResources::setDrawArea(const char *id, DrawArea *d) {
    if (!id) return;
    if (d) d->retain();
    DrawArea *old = nullptr;
    {
        qlx::MutexLock lock(resourceMutex);
        auto it = drawAreaMap.find(id);
        if (it != drawAreaMap.end()) {
            old = it->second;
            if (d)
                it->second = d;
            else
                drawAreaMap.erase(it);
        } else if (d) {
            drawAreaMap[id] = d;
        }
    }
    // Released outside the lock: the canvas's destructor may release resources of its own.
    if (old) old->destroy();
}

DrawArea *GlobalResources::getDrawArea(const char *id) {
    if (!id || !*id) return nullptr;
    qlx::MutexLock lock(resourceMutex);
    auto it = drawAreaMap.find(id);
    return it == drawAreaMap.end() ? nullptr : it->second;
}

DrawArea *GlobalResources::acquireDrawArea(const char *id) {
    if (!id || !*id) return nullptr;
    qlx::MutexLock lock(resourceMutex);
    auto it = drawAreaMap.find(id);
    if (it == drawAreaMap.end()) return nullptr;
    it->second->retain();
    return it->second;
}

char *GlobalResources::encodeDrawArea(const char *id, int *length) {
    *length = 0;
    DrawArea *d = acquireDrawArea(id);
    if (!d) return nullptr;
    char *copy = nullptr;
    {
        qlx::MutexLock lock(sharedReadMutex);
        MemBlock png = d->outPNG2();
        copy = png.len > 0 ? (char *)malloc((size_t)png.len) : nullptr;
        if (copy) {
            memcpy(copy, png.data, (size_t)png.len);
            *length = png.len;
        }
    }
    // Outside the lock: the last reference may go here, and the canvas with it.
    d->destroy();
    return copy;
}

void GlobalResources::setSetting(const char *name, const char *value) {
    if (!name) return;
    qlx::MutexLock lock(resourceMutex);
    if (value)
        settings[name] = value;
    else
        settings.erase(name);
}

bool GlobalResources::getSetting(const char *name, std::string *value) {
    if (!name) return false;
    qlx::MutexLock lock(resourceMutex);
    auto it = settings.find(name);
    if (it == settings.end()) return false;
    *value = it->second;
    return true;
}

int GlobalResources::getPixelLimit() {
    return pixelLimit.get();
}

int GlobalResources::getFileLimit() {
    return fileLimit.get();
}

int GlobalResources::getGlyphCacheLimit() {
    return glyphCacheLimit.get();
}

int GlobalResources::getDefaultTextAA() {
    return defaultTextAA.get();
}

int GlobalResources::parseLimit(const char *text, int defaultValue) {
    if (!text) return defaultValue;
    double v = std::floor(qlx::atofCLocale(text) + 0.5);
    if (!(v == v)) return defaultValue;
    if (v > 2147483647.0) return 2147483647;
    if (v < -2147483648.0) return (int)-2147483647 - 1;
    return (int)v;
}
