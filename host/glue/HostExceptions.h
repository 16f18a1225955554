#pragma once

#include "host/sdk/PluginTypes.h"

// The error number of every exception the plug-in raises.
constexpr int kPluginErrorNumber = 1536;

// Makes an exception of the class (or a RuntimeException when the host has no
// such class), sets "Message" and "ErrorNumber", raises it and lets it go.
void RaiseException(const char *className, const char *message, int errorNumber);
// The object has no engine object behind it; word names the class for the log.
void RaiseNotInitialzed(const char *word);
// Turns the exception being handled into a host exception; call inside catch.
void raiseCurrentException();

// Runs f, turning anything it throws into a host exception and a zero result.
template <class R, class F>
R guard(F &&f) {
    try {
        return f();
    } catch (...) {
        raiseCurrentException();
    }
    return R();
}
