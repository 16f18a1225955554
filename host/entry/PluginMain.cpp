// The entry points: REALPluginMain for the host, libEntry when the file is run.
#include <pthread.h>
#include <unistd.h>

#include "host/classes/ClassList.h"
#include "host/classes/Registration.h"
#include "host/sdk/HostFunctions.h"

#define VISTREL_EXPORT extern "C" __attribute__((visibility("default")))

// Running the library as a program needs the dynamic loader named in it.
extern "C" const char kVistrelInterpreter[] __attribute__((section(".interp"), used)) =
    "/lib64/ld-linux-x86-64.so.2";

namespace {

double gHostVersion = 0;
int gControlVersion = 9;
pthread_t gMainThread;

// Kept in the file so that the version can be read from it.
__attribute__((used)) const char kPluginVersionText[] = "$$ Plugin version: 26.2 (2026) $$";
const char kVersionLine[] = "XPG Plugin, version 26.2, built May  4 2026\n";

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

VISTREL_EXPORT void *REALPluginMain(void *(*resolver)(const char *entryName)) {
    setHostResolver(resolver);
    if (resolver) gHostVersion = REALGetRBVersion();
    gControlVersion = controlVersionFor(gHostVersion);
    if (!resolver) return &gControlVersion;
    RegisterPluginVersion(gControlVersion);
    PluginEntry();
    return &gControlVersion;
}

// Reached only when the file is started as a program: the stack is as the
// kernel left it, so it is realigned, and nothing but system calls is used.
VISTREL_EXPORT __attribute__((noreturn, force_align_arg_pointer)) void libEntry() {
    ssize_t written = write(STDOUT_FILENO, kVersionLine, sizeof kVersionLine - 1);
    (void)written;
    _exit(0);
}
