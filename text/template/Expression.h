#pragma once

#include <string>

// Evaluates the arithmetic inside "{=...}" once its attributes are filled in.
// Reading is deliberately loose: one additive operator per level ("1+2+3" is 3),
// "*", "/", "%" and "^" at one level from left to right, and malformed text
// gives whatever this reading gives.  There is no error.
class Expression {
public:
    // The text from begin up to end, without the "{=" and the closing brace or bar.
    Expression(const char *begin, const char *end);

    double evaluate() { return additive(); }

private:
    void readToken();
    double term();
    double factor();
    double additive();

    const char *cursor;
    const char *end;
    std::string token;
    char op;
    int depth;
};
