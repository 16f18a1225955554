#pragma once

namespace simhost {

// The resolver handed to REALPluginMain: the host function of a name, or null.
void *hostResolver(const char *entryName);
// The host function of a name, whatever the options hide.
void *hostFunction(const char *entryName);

}  // namespace simhost
