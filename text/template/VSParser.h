#pragma once

#include <string>

class Formatter;

// Scans one template.  The caller loops over getNextAttr(), replaces the attributes
// its context knows with replaceAttr(), and takes getResult() at the end, which
// evaluates the "{=...}" parts.  Attributes nobody replaces stay as typed.
class VSParser {
public:
    // Bits of the escaping flags.
    enum {
        kEscapeHTML = 1,
        kEscapeURL = 2,
        kOldDelimiter = 4,  // also accept "&name&"
        kEscapeJS = 8,
    };
    // Longest name or format kept, in bytes.
    static constexpr int kMaxAttrLength = 255;

    explicit VSParser(const char *text = nullptr, int flags = 0);
    void init(const char *text, int flags);

    // The next attribute's name, or null at the end.  Escape words are taken here.
    const char *getNextAttr();
    // The current attribute's format; "" if it has none.
    const char *getFormatString() const { return formatString; }
    // Replaces the current attribute and goes on behind the inserted text.
    void replaceAttr(const char *value);
    // The same for the range [start, end), end -1 meaning the template's end.
    // Returns the position behind the inserted text, or -1 if nothing follows.
    int replaceAttr(const char *value, int start, int end);
    // Evaluates the expressions; with a null formatter they stay as typed.
    const char *getResult(Formatter *formatter);

    const char *getText() const { return text.c_str(); }
    int getFlags() const { return flags; }
    bool isStrippingMarkup() const { return stripMarkup; }

private:
    const char *getNextAttr2();
    int tryOldDelimiter(int from) const;
    int find(char c, int from) const;
    bool applyEscapeWord(const char *name);
    std::string escape(const char *value) const;

    std::string text;
    int flags;
    bool stripMarkup;
    int attrStart;
    int attrEnd;  // behind the current attribute; -1 once it is replaced
    int nextPos;
    char formatString[kMaxAttrLength + 1];
    char attrName[kMaxAttrLength + 1];
    bool inExpression;
};
