#pragma once

#include <fstream>
#include <sstream>
#include <string>

// The stand-in fonts the build copies beside the test programs.
inline const char *testFontDir() {
    return VISTREL_BINARY_DIR "/fonts";
}

inline std::string readFile(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}
