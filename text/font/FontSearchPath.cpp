#include "text/font/FontSearchPath.h"

#include <dlfcn.h>
#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include "foundation/Mutex.h"

namespace {

qlx::Mutex pathMutex;
bool builtInSet = false;
std::string builtInPath;
std::string customPath;

}  // namespace

void FontSearchPath::setFontSearchPath(const char *path) {
    qlx::MutexLock lock(pathMutex);
    builtInPath = path ? path : "";
    builtInSet = true;
}

std::string FontSearchPath::getFontSearchPath() {
    qlx::MutexLock lock(pathMutex);
    if (!builtInSet) {
        builtInPath = getModuleDirectory() + "/fonts";
        builtInSet = true;
    }
    return builtInPath;
}

void FontSearchPath::setCustomFontSearchPath(const char *path) {
    qlx::MutexLock lock(pathMutex);
    customPath = path ? path : "";
}

std::string FontSearchPath::getCustomFontSearchPath() {
    qlx::MutexLock lock(pathMutex);
    return customPath;
}

std::string FontSearchPath::getModuleDirectory() {
    Dl_info info;
    if (!dladdr((void *)&FontSearchPath::getModuleDirectory, &info) || !info.dli_fname) return ".";
    std::string file = info.dli_fname;
    // A program linked statically may be named without a directory.
    char resolved[PATH_MAX];
    if (file.find('/') == std::string::npos) {
        ssize_t n = readlink("/proc/self/exe", resolved, sizeof(resolved) - 1);
        if (n <= 0) return ".";
        resolved[n] = 0;
        file = resolved;
    } else if (file[0] != '/' && realpath(file.c_str(), resolved)) {
        file = resolved;
    }
    size_t slash = file.rfind('/');
    return slash == 0 ? std::string() : file.substr(0, slash);
}

void FontSearchPath::addList(std::vector<std::string> *list, const std::string &path) {
    char separator = path.find(';') != std::string::npos ? ';' : ':';
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find(separator, start);
        if (end == std::string::npos) end = path.size();
        std::string item = path.substr(start, end - start);
        if (!item.empty()) {
            char last = item[item.size() - 1];
            if (last != '/' && last != '\\') item += '/';
            list->push_back(item);
        }
        start = end + 1;
    }
}

void FontSearchPath::addDefaultList(std::vector<std::string> *list, const std::string &builtIn,
                                    const char *envFontPath) {
    if (envFontPath) addList(list, envFontPath);
    list->push_back(std::string());
    addList(list, builtIn);
}

std::vector<std::string> FontSearchPath::buildSearchList(const std::string &custom,
                                                         const std::string &builtIn,
                                                         const char *envFontPath) {
    std::vector<std::string> list;
    if (custom.empty()) {
        addDefaultList(&list, builtIn, envFontPath);
        return list;
    }
    size_t mark = custom.find("%PATH%");
    if (mark == std::string::npos) {
        addList(&list, custom);
        return list;
    }
    addList(&list, custom.substr(0, mark));
    addDefaultList(&list, builtIn, envFontPath);
    size_t rest = mark + 6;
    if (rest < custom.size() && (custom[rest] == ':' || custom[rest] == ';')) ++rest;
    addList(&list, custom.substr(rest));
    return list;
}
