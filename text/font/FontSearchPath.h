#pragma once

#include <string>
#include <vector>

// The two process-wide font search paths and the directory list they give.
// They are read once, when the font driver is created.
class FontSearchPath {
public:
    // The built-in path: by default the directory of the loaded library (or the
    // program) followed by "/fonts".
    static void setFontSearchPath(const char *path);
    static std::string getFontSearchPath();
    // The user's path; "%PATH%" in it stands for the environment and built-in list.
    static void setCustomFontSearchPath(const char *path);
    static std::string getCustomFontSearchPath();

    // The directories to try in order, each ending in "/" or "\\"; the empty
    // entry means the working directory.  envFontPath is "FONTPATH" (may be null).
    static std::vector<std::string> buildSearchList(const std::string &custom,
                                                    const std::string &builtIn,
                                                    const char *envFontPath);

    // The directory holding the engine's own code, found from the loader.
    static std::string getModuleDirectory();

private:
    static void addList(std::vector<std::string> *list, const std::string &path);
    static void addDefaultList(std::vector<std::string> *list, const std::string &builtIn,
                               const char *envFontPath);
};
