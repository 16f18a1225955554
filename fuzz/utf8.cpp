// Feeds random bytes to the text conversions: UTF-8 decoding and re-encoding,
// the wide-string fallback and the locale-independent number parser.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "foundation/CLocale.h"
#include "foundation/Unicode.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    std::string text((const char *)data, size);
    text = text.c_str();  // stop at the first NUL, as every caller does
    std::vector<wchar_t> wide(text.size() + 1);
    qlx::UTF8toUTF16(wide.data(), text.c_str());
    std::vector<char> back(wide.size() * 3 + 1);
    qlx::UTF16toUTF8(back.data(), wide.data());
    qlx::toWCS(wide.data(), text.c_str());
    qlx::atofCLocale(text.c_str());
    return 0;
}
