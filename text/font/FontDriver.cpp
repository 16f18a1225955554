#include "text/font/FontDriver.h"

#include <cstdlib>

#include "text/font/FontSearchPath.h"
#include "text/font/LibTTFFontDriver.h"

namespace {

struct DriverHolder {
    qlx::Mutex mutex;
    FontDriver *driver = nullptr;
    ~DriverHolder() {
        qlx::MutexLock lock(mutex);
        delete driver;
        driver = nullptr;
    }
};

DriverHolder &holder() {
    static DriverHolder h;
    return h;
}

}  // namespace

qlx::Mutex &FontDriver::getMutex() {
    return holder().mutex;
}

FontDriver *FontDriver::getDriver() {
    DriverHolder &h = holder();
    if (!h.driver)
        h.driver = createLibTTFFontDriver(FontSearchPath::getFontSearchPath().c_str(),
                                          FontSearchPath::getCustomFontSearchPath().c_str());
    return h.driver;
}

void FontDriver::shutdown() {
    DriverHolder &h = holder();
    qlx::MutexLock lock(h.mutex);
    delete h.driver;
    h.driver = nullptr;
}
