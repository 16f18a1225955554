#include "draw/vector/NumberText.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "draw/vector/Affine.h"
#include "foundation/CLocale.h"

namespace {

const double kPow10[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};

// Beyond this the product's rounding error could reach the digit being rounded.
const double kFastLimit = 1e13;

double sane(double v) {
    if (!std::isfinite(v)) return 0;
    return v > NumberText::kLimit ? NumberText::kLimit
                                  : (v < -NumberText::kLimit ? -NumberText::kLimit : v);
}

int clampDecimals(int decimals) {
    return decimals < 0
               ? 0
               : (decimals > NumberText::kMaxDecimals ? NumberText::kMaxDecimals : decimals);
}

// Drops trailing zeros of the fraction, the point with them, and the sign of a zero.
int tidy(char *buf, int len) {
    if (std::memchr(buf, '.', len)) {
        while (len > 0 && buf[len - 1] == '0') --len;
        if (len > 0 && buf[len - 1] == '.') --len;
    }
    if (len == 2 && buf[0] == '-' && buf[1] == '0') buf[0] = '0', len = 1;
    buf[len] = 0;
    return len;
}

}  // namespace

int NumberText::formatSlow(char *buf, double v, int decimals) {
    int len = std::snprintf(buf, kMaxLength, "%.*f", clampDecimals(decimals), sane(v));
    qlx::convertToCLocale(buf);
    return tidy(buf, len);
}

int NumberText::format(char *buf, double v, int decimals) {
    decimals = clampDecimals(decimals);
    v = sane(v);
    double scaled = std::fabs(v) * kPow10[decimals];
    if (scaled >= kFastLimit) return formatSlow(buf, v, decimals);
    double whole = std::floor(scaled), fraction = scaled - whole;
    // Near a tie the decimal value of v decides, which only printf knows.
    if (std::fabs(fraction - 0.5) < 1e-6 + scaled * 1e-15) return formatSlow(buf, v, decimals);
    unsigned long long n = (unsigned long long)whole + (fraction > 0.5 ? 1 : 0);
    // Digits from the last one backwards, at least one before the point.
    char digits[32];
    int count = 0;
    do {
        digits[count++] = (char)('0' + n % 10);
        n /= 10;
    } while (n);
    while (count <= decimals) digits[count++] = '0';
    int zeros = 0;
    while (zeros < decimals && digits[zeros] == '0') ++zeros;
    char *p = buf;
    bool isZero = count == decimals + 1 && zeros == decimals && digits[decimals] == '0';
    if (v < 0 && !isZero) *p++ = '-';
    for (int i = count - 1; i >= decimals; --i) *p++ = digits[i];
    if (zeros < decimals) {
        *p++ = '.';
        for (int i = decimals - 1; i >= zeros; --i) *p++ = digits[i];
    }
    *p = 0;
    return (int)(p - buf);
}

int NumberText::formatInt(char *buf, long long v) {
    char digits[24];
    int count = 0;
    unsigned long long n = v < 0 ? 0ULL - (unsigned long long)v : (unsigned long long)v;
    do {
        digits[count++] = (char)('0' + n % 10);
        n /= 10;
    } while (n);
    char *p = buf;
    if (v < 0) *p++ = '-';
    while (count > 0) *p++ = digits[--count];
    *p = 0;
    return (int)(p - buf);
}

void NumberText::appendMatrix(std::string &out, const Affine &map, int decimals) {
    // Affine holds the map row by row: a, c, e then b, d, f in the order above.
    static const int kOrder[6] = {0, 2, 1, 3, 4, 5};
    for (int i = 0; i < 6; ++i) {
        if (i) out += ' ';
        append(out, map.m[kOrder[i]], decimals);
    }
}
