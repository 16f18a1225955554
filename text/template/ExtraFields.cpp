#include "text/template/ExtraFields.h"

#include <cmath>

#include "text/template/Formatter.h"
#include "text/template/TemplateHelpers.h"
#include "text/template/VSParser.h"

namespace {

// The attribute names, in the order they are tried, and how each picks its cell.
struct FieldName {
    const char *prefix;
    bool columnAddsDataSet;
    bool rowIsDataSet;
};
const FieldName kFieldNames[] = {
    {"dsField", false, true},
    {"diField", false, false},
    {"field", false, false},
    {"dsdiField", true, false},
};

const char *const kDateFormat = "mmm dd, yyyy";
const char *const kDateTimeFormat = "mmm dd, yyyy hh:nn:ss";

}  // namespace

void ExtraFields::addExtraField(StringArray texts) {
    StringOrDoubleArray field;
    field.isText = true;
    field.len = texts.len;
    field.texts.reserve(texts.len);
    for (int i = 0; i < texts.len; ++i)
        field.texts.emplace_back(texts.data[i] ? texts.data[i] : "");
    fields.push_back(std::move(field));
}

void ExtraFields::addExtraField(DoubleArray numbers) {
    StringOrDoubleArray field;
    field.len = numbers.len;
    field.numbers.assign(numbers.data, numbers.data + numbers.len);
    fields.push_back(std::move(field));
}

bool ExtraFields::formatAttr(VSParser *parser, Formatter *formatter, int dataSetIndex,
                             int dataItemIndex, const char *attrName) {
    if (!parser || !attrName) return false;
    for (const FieldName &name : kFieldNames) {
        int n = getAttrIndex(attrName, name.prefix);
        if (n < 0) continue;
        long long column = (long long)n + (name.columnAddsDataSet ? dataSetIndex : 0);
        if (column < 0 || column >= (long long)fields.size()) return false;
        const StringOrDoubleArray &field = fields[column];
        int row = name.rowIsDataSet ? dataSetIndex : dataItemIndex;
        bool inRange = row >= 0 && row < field.len;

        if (field.isText) {
            parser->replaceAttr(inRange ? field.texts[row].c_str() : "");
            return true;
        }
        // A number out of range leaves the attribute in the text on purpose.
        if (!inRange || !formatter) return true;
        double value = field.numbers[row];
        const char *format = parser->getFormatString();
        if (!*format && lookLikeDate(value))
            format = std::fmod(value, 86400) == 0 ? kDateFormat : kDateTimeFormat;
        parser->replaceAttr(formatter->format(format, value));
        return true;
    }
    return false;
}
