// Random templates, formats and values through the parser and the formatter.
// Input: 8 bytes of value, 1 byte of flags, then a format and a template split at
// the first NUL byte.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "text/template/ExtraFields.h"
#include "text/template/Formatter.h"
#include "text/template/VSParser.h"

namespace {

void checkBounded(const char *s, size_t limit) {
    if (!s || strnlen(s, limit + 1) > limit) abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 9 || size > 4096) return 0;
    double value;
    memcpy(&value, data, sizeof(value));
    int flags = data[8] & 15;
    std::string rest((const char *)data + 9, size - 9);
    size_t split = rest.find('\0');
    std::string format = rest.substr(0, split);
    std::string tmpl = split == std::string::npos ? rest : rest.substr(split + 1);
    // Later NUL bytes end the template as a C string would.
    tmpl.resize(strlen(tmpl.c_str()));

    Formatter chart;
    Formatter formatter;
    formatter.setDefault(&chart);
    if (data[8] & 16) chart.setNumberFormat(format.empty() ? ',' : format[0], '~', '~');
    if (data[8] & 32) {
        const char *names[3] = {format.c_str(), tmpl.c_str(), nullptr};
        chart.setMonthNames(names, 3);
        chart.setAMPM(tmpl.c_str(), format.c_str());
    }
    formatter.setContextPrecision(data[0] % 40 - 5);

    const char *direct = formatter.format(format.c_str(), value);
    checkBounded(direct, 1023);
    if (format[0] && ((format[0] | 32) >= 'a' && (format[0] | 32) <= 'z') &&
        !strchr("eEgGpP", format[0]))
        checkBounded(direct, Formatter::kMaxDateLength);

    ExtraFields fields;
    const char *texts[2] = {format.c_str(), "<*br*>x'\"&"};
    double numbers[2] = {value, value * 0.5};
    fields.addExtraField(StringArray(texts, 2));
    fields.addExtraField(DoubleArray(numbers, 2));

    VSParser parser(tmpl.c_str(), flags);
    int count = 0;
    while (const char *name = parser.getNextAttr()) {
        checkBounded(name, VSParser::kMaxAttrLength);
        checkBounded(parser.getFormatString(), VSParser::kMaxAttrLength);
        if (++count > 10000) abort();
        if (fields.formatAttr(&parser, &formatter, data[0] % 3, data[1] % 3, name)) continue;
        if (count % 3 == 0) continue;
        const char *text = formatter.format(parser.getFormatString(), value);
        checkBounded(text, 1023);
        parser.replaceAttr(count % 2 ? text : format.c_str());
    }
    const char *result = parser.getResult(&formatter);
    checkBounded(result, 1u << 24);
    return 0;
}
