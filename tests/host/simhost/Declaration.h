#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Declarations as the host's compiler reads them: "name(p as Type = 1, q() as
// Double) as Type", constants "kName as Integer = &hFF", and the literals of
// their defaults.  Names of types are compared without regard to case.
namespace simhost {

struct XojoType {
    // Lower case: "integer", "double", "color", "vsdrawareaxpg", ...
    std::string name;
    bool isArray = false;
};

struct Param {
    std::string name;
    XojoType type;
    bool byRef = false;
    bool assigns = false;
    bool hasDefault = false;
    std::string defaultText;
};

struct Declaration {
    std::string name;
    std::vector<Param> params;
    bool hasResult = false;
    XojoType result;
};

struct Literal {
    enum Kind { Integer, Double, Boolean, Color, String, Nil } kind = Nil;
    int64_t i = 0;
    double d = 0;
    std::string s;
};

struct ConstantDecl {
    std::string name;
    XojoType type;
    Literal value;
};

// False with a reason when the text is no declaration.
bool parseDeclaration(const std::string &text, Declaration &out, std::string &error);
bool parseConstant(const std::string &text, ConstantDecl &out, std::string &error);
bool parseLiteral(const std::string &text, Literal &out);

std::string lowerCase(std::string s);

}  // namespace simhost
