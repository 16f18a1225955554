#pragma once

#include "host/sdk/HostFunctions.h"

// What REALPluginMain does: keeps the resolver, learns the host's version,
// announces the interface version and registers every class.  Returns the
// address of the interface version; a null resolver only sets it.
void *pluginMain(HostResolver resolver);

// The host's version as REALGetRBVersion gave it (0 before loading).
double hostVersion();
