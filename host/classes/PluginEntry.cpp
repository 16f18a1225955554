#include "host/classes/PluginEntry.h"

#include <pthread.h>

#include "host/classes/Registration.h"

namespace {

double gHostVersion = 0;
int gControlVersion = 9;
pthread_t gMainThread;

// Kept in the file so that the version can be read from it.
__attribute__((used)) const char kPluginVersionText[] = "$$ Plugin version: 26.2 (2026) $$";

void MyREALRegisterClass(REALclassDefinition &def) {
    prepareDefinition(def, gHostVersion, gControlVersion);
    REALRegisterClass(&def);
}

void PluginEntry() {
    gMainThread = pthread_self();
    (void)kPluginVersionText;
    buildDefinitions(gHostVersion);
    for (int i = 0; i < kClassCount; ++i) MyREALRegisterClass(classDefinition(ClassId(i)));
}

}  // namespace

void *pluginMain(HostResolver resolver) {
    setHostResolver(resolver);
    if (resolver) gHostVersion = REALGetRBVersion();
    gControlVersion = controlVersionFor(gHostVersion);
    if (!resolver) return &gControlVersion;
    RegisterPluginVersion(gControlVersion);
    PluginEntry();
    return &gControlVersion;
}

double hostVersion() {
    return gHostVersion;
}
