#include "text/template/TemplateHelpers.h"

#include <climits>
#include <cstring>

#include "foundation/ChartStatics.h"

namespace {

const double kFirstDate = Chart::chartTime(1800, 1, 1, 0, 0, 0);
const double kLastDate = Chart::chartTime(2200, 1, 1, 0, 0, 0);

// The image-map writer turns this byte back into "&" once the query is in place.
const char kQueryAmpersand = 30;

bool isEmpty(const char *s) {
    return !s || !*s;
}

}  // namespace

int getAttrIndex(const char *attr, const char *prefix) {
    if (!attr || !prefix) return -2;
    size_t length = strlen(prefix);
    if (strncmp(attr, prefix, length) != 0) return -2;
    const char *p = attr + length;
    long long n = 0;
    for (const char *d = p; *d >= '0' && *d <= '9'; ++d)
        if ((n = n * 10 + (*d - '0')) > INT_MAX) n = INT_MAX;
    if (n == 0 && *p != '0') return -1;
    return (int)n;
}

bool lookLikeDate(double value) {
    return value >= kFirstDate && value <= kLastDate;
}

std::string replaceString(const char *text, const char *from, const char *to) {
    if (!text) return std::string();
    std::string result(text);
    if (isEmpty(from)) return result;
    if (!to) to = "";
    size_t fromLength = strlen(from);
    size_t toLength = strlen(to);
    for (size_t at = result.find(from); at != std::string::npos;
         at = result.find(from, at + toLength))
        result.replace(at, fromLength, to, toLength);
    return result;
}

std::string combineQuery(const char *query, const char *defaultQuery) {
    if (isEmpty(query)) return defaultQuery ? defaultQuery : "";
    return replaceString(query, "{default}", defaultQuery);
}

std::string urlJoin(const char *url, const char *query) {
    if (isEmpty(url)) return std::string();
    if (!strstr(url, "{queryParam}")) {
        if (isEmpty(query) || strcmp(query, " ") == 0) return url;
        std::string result(url);
        if (*query != '&' && *query != '?') result += strchr(url, '?') ? '&' : '?';
        return result += query;
    }
    std::string param(query ? query : "");
    for (char &c : param)
        if (c == '&') c = kQueryAmpersand;
    return replaceString(url, "{queryParam}", param.c_str());
}
