#include "text/template/VSParser.h"

#include <strings.h>

#include <cstdio>
#include <cstring>

#include "text/template/Expression.h"
#include "text/template/Formatter.h"

namespace {

// Words that switch the escaping for all later attributes.  The mark-up pair acts
// the other way round from the others, and "noescape_html" also ends script
// escaping; old templates rely on both.
struct EscapeWord {
    const char *word;
    int setFlags;
    int clearFlags;
    int stripMarkup;  // -1 leaves it as it is
};
const EscapeWord kEscapeWords[] = {
    {"escape_html", VSParser::kEscapeHTML, 0, -1},
    {"noescape_html", 0, VSParser::kEscapeHTML | VSParser::kEscapeJS, -1},
    {"escape_url", VSParser::kEscapeURL, 0, -1},
    {"noescape_url", 0, VSParser::kEscapeURL, -1},
    {"escape_vsml", 0, 0, 0},
    {"noescape_vsml", 0, 0, 1},
    {"escape_js", VSParser::kEscapeJS, 0, -1},
    {"noescape_js", 0, VSParser::kEscapeJS, -1},
};

const int kAnyEscaping = VSParser::kEscapeHTML | VSParser::kEscapeURL | VSParser::kEscapeJS;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// Copies the prefix and then src, at most VSParser::kMaxAttrLength bytes, terminated.
void copyAttrText(char *dst, const char *prefix, const char *src, int length) {
    int n = 0;
    for (; *prefix && n < VSParser::kMaxAttrLength; ++prefix) dst[n++] = *prefix;
    for (int i = 0; i < length && n < VSParser::kMaxAttrLength; ++i) dst[n++] = src[i];
    dst[n] = 0;
}

// "<*br*>" becomes a blank, other mark-up goes, "<<*" is a literal "<*".
std::string withoutMarkup(const std::string &s) {
    std::string out;
    size_t i = 0;
    while (i < s.size()) {
        if (s.compare(i, 3, "<<*") == 0) {
            out += "<*";
            i += 3;
        } else if (s.compare(i, 2, "<*") == 0) {
            size_t close = s.find("*>", i + 2);
            if (close == std::string::npos) break;
            if (close == i + 4 && strncasecmp(s.c_str() + i + 2, "br", 2) == 0) out += ' ';
            i = close + 2;
        } else {
            out += s[i++];
        }
    }
    return out;
}

std::string urlEscaped(const std::string &s) {
    std::string out;
    for (char c : s) {
        if (c && strchr(" %?&+=#", c)) {
            char code[8];
            snprintf(code, sizeof(code), "%%%02X", (unsigned char)c);
            out += code;
        } else {
            out += c;
        }
    }
    return out;
}

std::string scriptEscaped(const std::string &s) {
    std::string out;
    for (char c : s) {
        if (c == '\'' || c == '"' || c == '\\' || c == '\n') out += '\\';
        out += c == '\n' ? 'n' : c;
    }
    return out;
}

// "<" and "&" are left alone: values may carry mark-up the page is meant to see.
std::string htmlEscaped(const std::string &s) {
    std::string out;
    for (char c : s) {
        if (c == '\'' || c == '"' || c == '>') {
            char code[8];
            snprintf(code, sizeof(code), "&#%d;", c);
            out += code;
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace

VSParser::VSParser(const char *t, int f) {
    init(t, f);
}

void VSParser::init(const char *t, int f) {
    text = t ? t : "";
    flags = f;
    stripMarkup = (flags & kAnyEscaping) != 0;
    // A script in an attribute is HTML, not a query.
    if ((flags & kEscapeURL) && strncasecmp(text.c_str(), "javascript:", 11) == 0)
        flags = (flags & ~(kEscapeHTML | kEscapeURL)) | kEscapeHTML;
    attrStart = 0;
    attrEnd = -1;
    nextPos = 0;
    formatString[0] = 0;
    attrName[0] = 0;
    inExpression = false;
}

int VSParser::find(char c, int from) const {
    if (from < 0 || from >= (int)text.size()) return -1;
    const void *p = memchr(text.data() + from, c, text.size() - from);
    return p ? (int)((const char *)p - text.data()) : -1;
}

int VSParser::tryOldDelimiter(int from) const {
    int a = find('&', from);
    if (a < 0 || a == (int)text.size() - 1) return -1;
    int b = find('&', a + 1);
    if (b < 0) return -1;
    if (memchr(text.data() + a + 1, '{', b - a - 1)) return -1;
    return a;
}

const char *VSParser::getNextAttr() {
    for (;;) {
        const char *name = getNextAttr2();
        if (!name || formatString[0] || !applyEscapeWord(name)) return name;
        text.erase(attrStart, attrEnd - attrStart);
        nextPos = attrStart < (int)text.size() ? attrStart : -1;
        attrEnd = -1;
    }
}

bool VSParser::applyEscapeWord(const char *name) {
    for (const EscapeWord &w : kEscapeWords) {
        if (strcmp(name, w.word) != 0) continue;
        flags = (flags | w.setFlags) & ~w.clearFlags;
        if (w.stripMarkup >= 0) stripMarkup = w.stripMarkup != 0;
        return true;
    }
    return false;
}

const char *VSParser::getNextAttr2() {
    attrEnd = -1;
    for (;;) {
        int length = (int)text.size();
        int open = find('{', nextPos);
        bool old = false;
        if (flags & kOldDelimiter) {
            int a = nextPos < 0 ? -1 : tryOldDelimiter(nextPos);
            if (a >= 0 && (open < 0 || a < open)) {
                open = a;
                old = true;
            }
        }
        if (open < 0 || open == length - 1) {
            inExpression = false;
            nextPos = -1;
            return nullptr;
        }
        if (inExpression) {
            int close = find('}', nextPos);
            if (close < 0 || close < open) inExpression = false;
        }
        if (!old) {
            int q = open + 1;
            while (q < length && isBlank(text[q])) ++q;
            if (q < length && text[q] == '=') {
                // "{ =" reads as "{= " from now on.
                std::swap(text[q], text[open + 1]);
                inExpression = true;
                nextPos = open + 1;
                continue;
            }
        }

        int close = find(old ? '&' : '}', open + 1);
        if (close < 0) {
            nextPos = -1;
            return nullptr;
        }
        const char *body = text.data() + open + 1;
        const char *bar = (const char *)memchr(body, '|', close - open - 1);
        int nameLength = bar ? (int)(bar - body) : close - open - 1;
        copyAttrText(attrName, "", body, nameLength);
        // Numbers inside an expression are read back, so they are asked for plain.
        const char *plain = inExpression ? "\x01" : "";
        copyAttrText(formatString, plain, bar ? bar + 1 : body,
                     bar ? close - open - 2 - nameLength : 0);

        attrStart = open;
        attrEnd = close + 1;
        nextPos = close == length - 1 ? -1 : close + 1;
        return attrName;
    }
}

std::string VSParser::escape(const char *value) const {
    std::string s(value ? value : "");
    if (inExpression) return s;
    if (stripMarkup && s.find("<*") != std::string::npos) s = withoutMarkup(s);
    if (flags & kEscapeURL) s = urlEscaped(s);
    if (flags & kEscapeJS) s = scriptEscaped(s);
    if (flags & (kEscapeHTML | kEscapeURL)) s = htmlEscaped(s);
    return s;
}

void VSParser::replaceAttr(const char *value) {
    if (attrEnd < 0) return;
    replaceAttr(value, attrStart, attrEnd);
    attrEnd = -1;
}

int VSParser::replaceAttr(const char *value, int start, int end) {
    int length = (int)text.size();
    if (end == -1) end = length;
    if (start < 0 || start > end || end > length) return -1;
    std::string inserted = escape(value);
    text.replace(start, end - start, inserted);
    int behind = start + (int)inserted.size();
    nextPos = behind < (int)text.size() ? behind : -1;
    return nextPos;
}

const char *VSParser::getResult(Formatter *formatter) {
    inExpression = false;
    if (!formatter) return text.c_str();
    size_t from = 0;
    for (;;) {
        size_t start = text.find("{=", from);
        if (start == std::string::npos) break;
        size_t close = text.find('}', start + 2);
        if (close == std::string::npos) break;
        const char *body = text.data() + start + 2;
        const char *bar = (const char *)memchr(body, '|', text.data() + close - body);
        char format[kMaxAttrLength + 1];
        copyAttrText(format, "", bar ? bar + 1 : body,
                     bar ? (int)(text.data() + close - bar - 1) : 0);

        Expression expression(body, bar ? bar : text.data() + close);
        std::string value = formatter->format(format, expression.evaluate());
        int behind = replaceAttr(value.c_str(), (int)start, (int)close + 1);
        if (behind < 0) break;
        from = behind;
    }
    return text.c_str();
}
