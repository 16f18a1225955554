#pragma once

class Formatter;
class VSParser;

// Something that can fill template attributes of a data point: extra columns, a
// chart's custom fields.  A label's context tries its own names first and then
// hands the attribute down a list of these.
class TemplateFieldSource {
public:
    virtual ~TemplateFieldSource() {}
    // True if the attribute was one of this source's; it has then been handled
    // (usually replaced) through the parser.
    virtual bool formatAttr(VSParser *parser, Formatter *formatter, int dataSetIndex,
                            int dataItemIndex, const char *attrName) = 0;
};
