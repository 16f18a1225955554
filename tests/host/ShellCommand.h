#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <set>
#include <string>

// Output and exit status of a shell command.
inline std::string runCommand(const std::string &command, int *status) {
    FILE *p = popen(command.c_str(), "r");
    std::string out;
    if (!p) return out;
    char buf[512];
    for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) out.append(buf, n);
    int s = pclose(p);
    *status = WIFEXITED(s) ? WEXITSTATUS(s) : -1;
    return out;
}

// The last word of every line.
inline std::set<std::string> lastWords(const std::string &text) {
    std::set<std::string> words;
    size_t start = 0;
    for (size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1) {
        std::string line = text.substr(start, end - start);
        words.insert(line.substr(line.rfind(' ') + 1));
    }
    return words;
}
