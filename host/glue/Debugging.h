#pragma once

#include <cstdio>

// One log line per glue call and per lifetime step while debugging is on.
bool getDebugging();
void setDebugging(bool on);
// Where the lines go; null (the default) is the standard error stream.
void setLogFile(FILE *file);

// "XPG Debug: " and the formatted text, as one line.
void LogMessageX(const char *format, ...) __attribute__((format(printf, 1, 2)));
void LogMessage(const char *name);
void LogMessage(const char *name, long long a);
void LogMessage(const char *name, long long a, long long b);
void LogMessage(const char *name, long long a, long long b, long long c);
void LogMessage(const char *name, long long a, long long b, long long c, long long d);
void LogMessage(const char *name, const void *p);
void LogMessage(const char *name, const char *text);
void LogMessage(const char *name, double value);
