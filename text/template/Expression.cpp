#include "text/template/Expression.h"

#include <cmath>
#include <cstring>

#include "foundation/CLocale.h"

namespace {

const char kDelimiters[] = "+-*/%^()";
// Deeper nesting reads as 0 instead of exhausting the stack.
const int kMaxDepth = 200;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isDelimiter(char c) {
    return c && strchr(kDelimiters, c) != nullptr;
}

double divide(double a, double b) {
    if (b != 0) return a / b;
    if (a == 0) return 1;
    return a < 0 ? -1.79e308 : 1.79e308;
}

}  // namespace

Expression::Expression(const char *b, const char *e) : cursor(b), end(e), op(0), depth(0) {
    if (end < cursor) end = cursor;
}

void Expression::readToken() {
    token.clear();
    op = 0;
    while (cursor < end && isBlank(*cursor)) ++cursor;
    if (cursor >= end) return;
    if (isDelimiter(*cursor)) {
        op = *cursor++;
        return;
    }
    const char *delimiter = cursor + 1;
    for (; delimiter < end; ++delimiter) {
        if (!isDelimiter(*delimiter)) continue;
        // The sign of an exponent, as in "2.5E-1", belongs to the number.
        bool exponentSign = (*delimiter == '+' || *delimiter == '-') && delimiter + 1 < end &&
                            isDigit(*cursor) && (delimiter[-1] == 'e' || delimiter[-1] == 'E');
        if (!exponentSign) break;
    }
    const char *last = delimiter;
    while (last > cursor && isBlank(last[-1])) --last;
    token.assign(cursor, last);
    if (delimiter < end) {
        op = *delimiter;
        cursor = delimiter + 1;
    } else {
        cursor = end;
    }
}

double Expression::factor() {
    readToken();
    if (!token.empty()) return qlx::atofCLocale(token.c_str());
    char sign = 0;
    if (op == '+' || op == '-') {
        sign = op;
        readToken();
    }
    double value = 0;
    if (!token.empty()) {
        value = qlx::atofCLocale(token.c_str());
    } else if (op == '(' && depth < kMaxDepth) {
        ++depth;
        value = additive();
        --depth;
        readToken();
    }
    return sign == '-' ? -value : value;
}

double Expression::term() {
    double value = factor();
    while (op == '*' || op == '/' || op == '^' || op == '%') {
        char o = op;
        double f = factor();
        if (o == '*') value *= f;
        if (o == '/') value = divide(value, f);
        if (o == '^') value = pow(value, f);
        if (o == '%') value = fmod(value, f);
    }
    return value;
}

// A term and at most one additive operator with a second term.
double Expression::additive() {
    double value = term();
    if (op == '+' || op == '-') {
        char o = op;
        double right = term();
        value = o == '+' ? value + right : value - right;
    }
    return value;
}
