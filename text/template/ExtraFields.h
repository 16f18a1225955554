#pragma once

#include <string>
#include <vector>

#include "foundation/ArrayViews.h"
#include "text/template/TemplateFieldSource.h"

// The user's additional columns, reached from templates as "{fieldN}", "{dsFieldN}",
// "{diFieldN}" and "{dsdiFieldN}".
class ExtraFields : public TemplateFieldSource {
public:
    struct StringOrDoubleArray {
        bool isText = false;
        std::vector<std::string> texts;
        std::vector<double> numbers;
        int len = 0;
    };

    // Both copy their input; null strings count as empty.
    void addExtraField(StringArray texts);
    void addExtraField(DoubleArray numbers);
    int getFieldCount() const { return (int)fields.size(); }

    bool formatAttr(VSParser *parser, Formatter *formatter, int dataSetIndex, int dataItemIndex,
                    const char *attrName) override;

private:
    std::vector<StringOrDoubleArray> fields;
};
