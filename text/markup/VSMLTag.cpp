#include "text/markup/VSMLTag.h"

#include <cstdlib>
#include <cstring>
#include <cwctype>

#include "foundation/CLocale.h"
#include "foundation/Unicode.h"

namespace {

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

std::wstring trim(const std::wstring &s) {
    size_t a = 0, b = s.size();
    while (a < b && isBlank(s[a])) ++a;
    while (b > a && isBlank(s[b - 1])) --b;
    return s.substr(a, b - a);
}

std::wstring lower(std::wstring s) {
    for (wchar_t &c : s) c = (wchar_t)towlower(c);
    return s;
}

bool isWordEnd(wchar_t c) {
    return c == 0 || c == L' ' || c == L'\t' || c == L'*' || c == L',' || c == L'=';
}

// Whether content starts with word, compared up to the first word end.
bool startsWithWord(const std::wstring &content, size_t from, const wchar_t *word) {
    size_t i = from;
    for (; *word; ++word, ++i)
        if (i >= content.size() || towlower(content[i]) != (wint_t)*word) return false;
    return i >= content.size() || isWordEnd(content[i]);
}

}  // namespace

VSMLTag::Kind VSMLTag::classify(const std::wstring &content) {
    size_t i = 0;
    while (i < content.size() && isBlank(content[i])) ++i;
    if (i < content.size() && content[i] == L'/') {
        wchar_t next = i + 1 < content.size() ? content[i + 1] : 0;
        if (next == L'b' || next == L'B' || next == L' ' || next == L'\t' || next == L'*' ||
            next == 0)
            return kEndBlock;
        return kInline;
    }
    if (startsWithWord(content, i, L"br")) return kBreak;
    if (startsWithWord(content, i, L"block")) return kBlock;
    if (startsWithWord(content, i, L"img")) return kImage;
    return kInline;
}

VSMLTag::VSMLTag(const std::wstring &content) : kind(classify(content)) {
    size_t start = 0;
    while (start <= content.size()) {
        size_t end = content.find(L',', start);
        if (end == std::wstring::npos) end = content.size();
        std::wstring item = content.substr(start, end - start);
        size_t eq = item.find(L'=');
        Pair p;
        p.hasValue = eq != std::wstring::npos;
        p.key = lower(trim(p.hasValue ? item.substr(0, eq) : item));
        if (p.hasValue) p.value = trim(item.substr(eq + 1));
        if (!p.key.empty()) pairs.push_back(p);
        start = end + 1;
    }
}

const std::wstring *VSMLTag::find(const wchar_t *key) const {
    for (const Pair &p : pairs)
        if (p.key == key) return &p.value;
    return nullptr;
}

std::string VSMLTag::toNarrow(const std::wstring &value) {
    std::string out(value.size() * 3 + 1, 0);
    qlx::UTF16toUTF8(&out[0], value.c_str());
    out.resize(strlen(out.c_str()));
    return out;
}

long VSMLTag::toInt(const std::wstring &value) {
    return wcstol(value.c_str(), nullptr, 0);
}

int VSMLTag::toColor(const std::wstring &value) {
    return (int)(unsigned int)wcstoul(value.c_str(), nullptr, 16);
}

double VSMLTag::toDouble(const std::wstring &value) {
    return qlx::atofCLocale(toNarrow(value).c_str());
}
