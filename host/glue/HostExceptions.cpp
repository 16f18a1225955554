#include "host/glue/HostExceptions.h"

#include <cstdio>
#include <cstring>
#include <new>
#include <stdexcept>

#include "host/glue/Debugging.h"
#include "host/sdk/HostFunctions.h"

namespace {

REALstring hostString(const char *text) {
    return REALBuildStringWithEncoding(text, (int)strlen(text), kREALTextEncodingUTF8);
}

// The words of the table, then ": " and the exception's own text, or ".".  No
// allocation here: the memory may just have run out.
void raiseWith(const char *className, const char *words, const char *what) {
    char message[1024];
    if (what && *what)
        snprintf(message, sizeof message, "%s: %s", words, what);
    else
        snprintf(message, sizeof message, "%s.", words);
    RaiseException(className, message, kPluginErrorNumber);
}

}  // namespace

void RaiseException(const char *className, const char *message, int errorNumber) {
    REALobject exc = REALnewInstance(className);
    if (!exc) exc = REALnewInstance("RuntimeException");
    if (!exc) return;
    REALstring text = hostString(message);
    REALSetPropValueString(exc, "Message", text);
    if (text) REALUnlockString(text);
    REALSetPropValueInteger(exc, "ErrorNumber", errorNumber);
    REALRaiseException(exc);
    REALUnlockObject(exc);
}

void RaiseNotInitialzed(const char *word) {
    if (getDebugging()) LogMessage("RaiseNotInitialzed", word);
    RaiseException("VSNotInitialzedExceptionXPG", "Object not initialzed correctly.",
                   kPluginErrorNumber);
}

void raiseCurrentException() {
    try {
        throw;
    } catch (const std::bad_alloc &e) {
        raiseWith("OutOfMemoryException", "Failed to allocate memory", e.what());
    } catch (const std::range_error &e) {
        raiseWith("OutOfBoundsException", "C++ reports range error", e.what());
    } catch (const std::out_of_range &e) {
        raiseWith("OutOfBoundsException", "C++ reports range error", e.what());
    } catch (const std::overflow_error &e) {
        raiseWith("RuntimeException", "C++ reports overflow error", e.what());
    } catch (const std::underflow_error &e) {
        raiseWith("RuntimeException", "C++ reports underflow error", e.what());
    } catch (const std::exception &e) {
        raiseWith("RuntimeException", "C++ Exception", e.what());
    } catch (...) {
        if (getDebugging()) LogMessage("Unnamed C++ Exception.");
        RaiseException("RuntimeException", "Sorry, but there was an unnamed C++ Exception.",
                       kPluginErrorNumber);
    }
}
