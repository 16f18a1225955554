#pragma once

#include "text/font/FontDriver.h"

// Holds the font mutex for a scope.  A thread that already holds it through
// another FontLock goes on without locking again, so a text released while its
// parent is being laid out does not wait for itself.
class FontLock {
public:
    FontLock() {
        if (depth()++ == 0) FontDriver::getMutex().lock();
    }
    ~FontLock() {
        if (--depth() == 0) FontDriver::getMutex().unlock();
    }
    FontLock(const FontLock &) = delete;
    FontLock &operator=(const FontLock &) = delete;

private:
    static int &depth() {
        static thread_local int d = 0;
        return d;
    }
};
