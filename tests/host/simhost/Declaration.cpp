#include "tests/host/simhost/Declaration.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>

namespace simhost {

std::string lowerCase(std::string s) {
    for (char &c : s) c = (char)tolower((unsigned char)c);
    return s;
}

namespace {

// A cursor over the text with the few tokens declarations are made of.
class Reader {
public:
    explicit Reader(const std::string &t) : text(t) {}

    void blanks() {
        while (pos < text.size() && (text[pos] == ' ' || text[pos] == '\t')) ++pos;
    }
    bool atEnd() {
        blanks();
        return pos >= text.size();
    }
    bool take(char c) {
        blanks();
        if (pos < text.size() && text[pos] == c) {
            ++pos;
            return true;
        }
        return false;
    }
    std::string word() {
        blanks();
        size_t start = pos;
        while (pos < text.size() && (isalnum((unsigned char)text[pos]) || text[pos] == '_')) ++pos;
        return text.substr(start, pos - start);
    }
    // A keyword is taken only as a whole word.
    bool keyword(const char *k) {
        size_t saved = pos;
        if (lowerCase(word()) == k) return true;
        pos = saved;
        return false;
    }
    // Everything up to a ',' or ')' outside quotes.
    std::string literalText() {
        blanks();
        size_t start = pos;
        bool quoted = false;
        while (pos < text.size()) {
            char c = text[pos];
            if (c == '"') quoted = !quoted;
            if (!quoted && (c == ',' || c == ')')) break;
            ++pos;
        }
        size_t end = pos;
        while (end > start && (text[end - 1] == ' ' || text[end - 1] == '\t')) --end;
        return text.substr(start, end - start);
    }
    std::string rest() {
        blanks();
        return text.substr(pos);
    }

private:
    const std::string &text;
    size_t pos = 0;
};

bool parseType(Reader &r, XojoType &type) {
    type.name = lowerCase(r.word());
    if (type.name.empty()) return false;
    if (r.take('(')) {
        if (!r.take(')')) return false;
        type.isArray = true;
    }
    return true;
}

bool parseParam(Reader &r, Param &p, std::string &error) {
    for (;;) {
        if (r.keyword("byref"))
            p.byRef = true;
        else if (r.keyword("byval"))
            continue;
        else if (r.keyword("assigns"))
            p.assigns = true;
        else
            break;
    }
    p.name = r.word();
    if (p.name.empty()) return error = "parameter without a name", false;
    bool arrayName = false;
    if (r.take('(')) {
        if (!r.take(')')) return error = "bad array parameter " + p.name, false;
        arrayName = true;
    }
    if (!r.keyword("as")) return error = "parameter " + p.name + " without a type", false;
    if (!parseType(r, p.type)) return error = "parameter " + p.name + " with a bad type", false;
    p.type.isArray = p.type.isArray || arrayName;
    if (r.take('=')) {
        p.hasDefault = true;
        p.defaultText = r.literalText();
        Literal value;
        if (!parseLiteral(p.defaultText, value))
            return error = "bad default " + p.defaultText + " of " + p.name, false;
    }
    return true;
}

bool isIdentifier(const std::string &s) {
    if (s.empty() || isdigit((unsigned char)s[0])) return false;
    for (char c : s)
        if (!isalnum((unsigned char)c) && c != '_') return false;
    return true;
}

bool parseNumber(const std::string &t, Literal &out) {
    const char *s = t.c_str();
    char *end = nullptr;
    errno = 0;
    long long v = strtoll(s, &end, 10);
    if (*s && !*end && errno == 0) {
        out.kind = Literal::Integer;
        out.i = v;
        return true;
    }
    double d = strtod(s, &end);
    if (*s && !*end && (isdigit((unsigned char)t.back()) || t.back() == '.')) {
        out.kind = Literal::Double;
        out.d = d;
        return true;
    }
    return false;
}

bool parseHex(const std::string &digits, uint64_t &v) {
    if (digits.empty() || digits.size() > 16) return false;
    v = 0;
    for (char c : digits) {
        if (!isxdigit((unsigned char)c)) return false;
        v = v * 16 + (isdigit((unsigned char)c) ? c - '0' : tolower(c) - 'a' + 10);
    }
    return true;
}

}  // namespace

bool parseLiteral(const std::string &t, Literal &out) {
    std::string lower = lowerCase(t);
    uint64_t v = 0;
    if (lower == "true" || lower == "false") {
        out.kind = Literal::Boolean;
        out.i = lower == "true";
        return true;
    }
    if (lower == "nil") {
        out.kind = Literal::Nil;
        return true;
    }
    if (t.size() >= 2 && t.front() == '"' && t.back() == '"') {
        out.kind = Literal::String;
        out.s = t.substr(1, t.size() - 2);
        return out.s.find('"') == std::string::npos;
    }
    if (lower.rfind("&h", 0) == 0 && parseHex(lower.substr(2), v)) {
        out.kind = Literal::Integer;
        out.i = (int64_t)v;
        return true;
    }
    // &cRRGGBB, or &cRRGGBBAA with the alpha byte on top.
    if (lower.rfind("&c", 0) == 0 && (lower.size() == 8 || lower.size() == 10) &&
        parseHex(lower.substr(2), v)) {
        out.kind = Literal::Color;
        out.i = lower.size() == 8 ? (int64_t)v : (int64_t)((v >> 8) | (v & 0xFF) << 24);
        return true;
    }
    return parseNumber(t, out);
}

bool parseDeclaration(const std::string &text, Declaration &out, std::string &error) {
    Reader r(text);
    out = Declaration();
    out.name = r.word();
    if (!isIdentifier(out.name)) return error = "no name in \"" + text + "\"", false;
    if (!r.take('(')) return error = "no '(' in \"" + text + "\"", false;
    if (!r.take(')')) {
        do {
            Param p;
            if (!parseParam(r, p, error)) return error += " in \"" + text + "\"", false;
            out.params.push_back(p);
        } while (r.take(','));
        if (!r.take(')')) return error = "no ')' in \"" + text + "\"", false;
    }
    if (r.keyword("as")) {
        out.hasResult = true;
        if (!parseType(r, out.result)) return error = "bad result type in \"" + text + "\"", false;
    }
    if (!r.atEnd()) return error = "text after the declaration in \"" + text + "\"", false;
    // Defaults must close the list, as the compiler fills them from the end.
    bool defaults = false;
    for (const Param &p : out.params) {
        if (defaults && !p.hasDefault && !p.assigns)
            return error = "a parameter without default after defaults in \"" + text + "\"", false;
        defaults = defaults || p.hasDefault;
    }
    return true;
}

bool parseConstant(const std::string &text, ConstantDecl &out, std::string &error) {
    Reader r(text);
    out = ConstantDecl();
    out.name = r.word();
    if (!isIdentifier(out.name)) return error = "no constant name in \"" + text + "\"", false;
    if (r.keyword("as") && !parseType(r, out.type))
        return error = "bad constant type in \"" + text + "\"", false;
    if (!r.take('=')) return error = "no value in \"" + text + "\"", false;
    if (!parseLiteral(r.rest(), out.value)) return error = "bad value in \"" + text + "\"", false;
    return true;
}

}  // namespace simhost
