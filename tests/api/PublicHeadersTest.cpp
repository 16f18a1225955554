#include <gtest/gtest.h>

#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace {

const std::string kSource = VISTREL_SOURCE_DIR;
const std::string kGenerated = VISTREL_GENERATED_INCLUDE;

// Runs a compiler on the given source text; its output, and whether it succeeded.
bool compile(const std::string &command, const std::string &text, std::string *output) {
    std::string file = ::testing::TempDir() + "vistrel_headers_" +
                       ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ofstream(file) << text;
    FILE *p = popen((command + " '" + file + "' 2>&1").c_str(), "r");
    if (!p) return false;
    char buf[4096];
    output->clear();
    for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) output->append(buf, n);
    int status = pclose(p);
    std::remove(file.c_str());
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::set<std::string> matches(const std::string &text, const std::regex &pattern) {
    std::set<std::string> found;
    for (std::sregex_iterator m(text.begin(), text.end(), pattern), end; m != end; ++m)
        found.insert((*m)[1].str());
    return found;
}

const std::regex kFunction("\\b(C[A-Z][A-Za-z0-9]*_[A-Za-z0-9_]+)\\s*\\(");
const std::string kIncludes = "-I'" + kSource + "' -I'" + kGenerated + "'";

}  // namespace

// vistrel.h compiles as C99 and as C++, and declares every function of every
// header of the flat interface.
TEST(PublicHeaders, TheCHeaderHoldsTheWholeFlatInterface) {
    std::string output;
    const std::string flags = " -pedantic -Wall -Wextra -Werror -fsyntax-only " + kIncludes;
    EXPECT_TRUE(compile("cc -std=c99 -x c" + flags, "#include <vistrel.h>\n", &output)) << output;
    EXPECT_TRUE(compile("c++ -std=c++17 -x c++" + flags, "#include <vistrel.h>\n", &output))
        << output;

    ASSERT_TRUE(compile("cc -std=c99 -E -x c " + kIncludes, "#include <vistrel.h>\n", &output))
        << output;
    std::set<std::string> declared = matches(output, kFunction);
    std::set<std::string> inHeaders;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(kSource + "/api")) {
        if (entry.path().extension() != ".h") continue;
        // Declarations only: macros are not functions.
        std::ifstream file(entry.path());
        std::string text;
        for (std::string line; std::getline(file, line);)
            if (line.compare(0, 1, "#") != 0) text += line + "\n";
        for (const std::string &name : matches(text, kFunction)) inHeaders.insert(name);
    }
    EXPECT_GT(inHeaders.size(), 300u);
    for (const std::string &name : inHeaders) EXPECT_EQ(1u, declared.count(name)) << name;
}

// vistrel.hpp gives C++ users the whole class behind every handle of the flat
// interface.
TEST(PublicHeaders, TheCppHeaderDefinesTheClassOfEveryHandle) {
    std::string output;
    ASSERT_TRUE(compile("cc -std=c99 -E -x c " + kIncludes, "#include <vistrel.h>\n", &output));
    std::set<std::string> classes = matches(output, std::regex("typedef struct C(\\w+) C\\1;"));
    EXPECT_TRUE(classes.count("DrawArea") && classes.count("BaseChart") && classes.count("Axis"));
    std::string text = "#include <vistrel.hpp>\n";
    for (const std::string &name : classes)
        text += "static_assert(sizeof(" + name + ") > 0, \"" + name + "\");\n";
    EXPECT_TRUE(
        compile("c++ -std=c++17 -x c++ -pedantic -Wall -Wextra -Werror -fsyntax-only " + kIncludes,
                text, &output))
        << output;
}
