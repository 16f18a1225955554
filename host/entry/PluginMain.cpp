// The entry points: REALPluginMain for the host, libEntry when the file is run.
#include <unistd.h>

#include "host/classes/PluginEntry.h"

#define VISTREL_EXPORT extern "C" __attribute__((visibility("default")))

// Running the library as a program needs the dynamic loader named in it.
extern "C" const char kVistrelInterpreter[] __attribute__((section(".interp"), used)) =
    "/lib64/ld-linux-x86-64.so.2";

namespace {

const char kVersionLine[] = "XPG Plugin, version 26.2, built May  4 2026\n";

}  // namespace

VISTREL_EXPORT void *REALPluginMain(void *(*resolver)(const char *entryName)) {
    return pluginMain(resolver);
}

// Reached only when the file is started as a program: the stack is as the
// kernel left it, so it is realigned, and nothing but system calls is used.
VISTREL_EXPORT __attribute__((noreturn, force_align_arg_pointer)) void libEntry() {
    ssize_t written = write(STDOUT_FILENO, kVersionLine, sizeof kVersionLine - 1);
    (void)written;
    _exit(0);
}
