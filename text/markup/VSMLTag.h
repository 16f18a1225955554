#pragma once

#include <string>
#include <vector>

// One "<*...*>" tag of the inline mark-up: its kind and its key=value pairs,
// keys lower-cased and both trimmed of blanks and tabs.
class VSMLTag {
public:
    enum Kind { kInline, kBreak, kBlock, kEndBlock, kImage };

    struct Pair {
        std::wstring key;
        std::wstring value;
        bool hasValue;
    };

    explicit VSMLTag(const std::wstring &content);

    Kind getKind() const { return kind; }
    const std::vector<Pair> &getPairs() const { return pairs; }
    // The value of key, or null.
    const std::wstring *find(const wchar_t *key) const;

    // Integer in any base (strtol with base 0), hexadecimal colour, double.
    static long toInt(const std::wstring &value);
    static int toColor(const std::wstring &value);
    static double toDouble(const std::wstring &value);
    static std::string toNarrow(const std::wstring &value);

private:
    static Kind classify(const std::wstring &content);

    Kind kind;
    std::vector<Pair> pairs;
};
