#include "host/glue/Debugging.h"

#include <cstdarg>

namespace {

bool gDebugging = false;
FILE *gLogFile = nullptr;

}  // namespace

bool getDebugging() {
    return gDebugging;
}

void setDebugging(bool on) {
    gDebugging = on;
    if (on) LogMessage("XPG debug logging enabled.");
}

void setLogFile(FILE *file) {
    gLogFile = file;
}

void LogMessageX(const char *format, ...) {
    char line[4096];
    va_list args;
    va_start(args, format);
    vsnprintf(line, sizeof line, format, args);
    va_end(args);
    FILE *out = gLogFile ? gLogFile : stderr;
    fprintf(out, "XPG Debug: %s\n", line);
    fflush(out);
}

void LogMessage(const char *name) {
    LogMessageX("%s", name);
}
void LogMessage(const char *name, long long a) {
    LogMessageX("%s %lld", name, a);
}
void LogMessage(const char *name, long long a, long long b) {
    LogMessageX("%s %lld %lld", name, a, b);
}
void LogMessage(const char *name, long long a, long long b, long long c) {
    LogMessageX("%s %lld %lld %lld", name, a, b, c);
}
void LogMessage(const char *name, long long a, long long b, long long c, long long d) {
    LogMessageX("%s %lld %lld %lld %lld", name, a, b, c, d);
}
void LogMessage(const char *name, const void *p) {
    LogMessageX("%s %p", name, p);
}
void LogMessage(const char *name, const char *text) {
    LogMessageX("%s %s", name, text ? text : "");
}
void LogMessage(const char *name, double value) {
    LogMessageX("%s %g", name, value);
}
