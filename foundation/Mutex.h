#pragma once

#include <pthread.h>

namespace qlx {

class Mutex {
public:
    Mutex() : holders(0) { pthread_mutex_init(&mutex, nullptr); }
    ~Mutex() { pthread_mutex_destroy(&mutex); }
    Mutex(const Mutex &) = delete;
    Mutex &operator=(const Mutex &) = delete;

    void lock() {
        pthread_mutex_lock(&mutex);
        ++holders;
    }
    void unlock() {
        --holders;
        pthread_mutex_unlock(&mutex);
    }
    int getHolders() const { return holders; }

private:
    pthread_mutex_t mutex;
    int holders;
};

// Scope guard for any of the engine's mutexes.
class MutexLock {
public:
    explicit MutexLock(Mutex &m) : mutex(m) { mutex.lock(); }
    ~MutexLock() { mutex.unlock(); }
    MutexLock(const MutexLock &) = delete;
    MutexLock &operator=(const MutexLock &) = delete;

private:
    Mutex &mutex;
};

// Guards the id counter.
extern Mutex qlxMutex;

// Next value of a process-wide counter that starts at 0.
long long getUniqueId();

}  // namespace qlx
