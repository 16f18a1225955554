#include "foundation/Mutex.h"

namespace qlx {

Mutex qlxMutex;

static long long uniqueId = 0;

long long getUniqueId() {
    MutexLock lock(qlxMutex);
    return uniqueId++;
}

}  // namespace qlx
