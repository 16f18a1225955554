#include "foundation/CLocale.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace qlx {

static char decimalSeparator() {
    char text[32];
    snprintf(text, sizeof(text), "%.1f", 0.0);
    return text[1];
}

char *convertToCLocale(char *s) {
    if (!s) return s;
    char separator = decimalSeparator();
    if (separator == '.') return s;
    for (char *p = s; *p; ++p)
        if (*p == separator) *p = '.';
    return s;
}

double atofCLocale(const char *s) {
    char separator = decimalSeparator();
    if (separator == '.' || !strchr(s, '.')) return strtod(s, nullptr);
    char local[1024];
    size_t n = strnlen(s, sizeof(local) - 1);
    memcpy(local, s, n);
    local[n] = 0;
    for (char *p = local; *p; ++p)
        if (*p == '.') *p = separator;
    return strtod(local, nullptr);
}

}  // namespace qlx
