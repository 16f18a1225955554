#pragma once

#include <string>
#include <vector>

#include "chart/axis/label/FormatCondition.h"

// The label formats of an axis: a single template, or several, each with a filter
// that picks the ticks it labels and conditions that gate the entries after them.
class LabelFormatList {
public:
    // Replaces the list, unless multi-format entries were added: then appends.
    void setLabelFormat(const char *format);
    void addFormat(int filter, const char *format, int labelSpan, bool promoteFirst);
    // Ignored for an empty word or an operand of kNoValue.
    void addCondition(const char *condition, double operand);

    bool isEmpty() const { return formatCount == 0; }
    int getFormatCount() const { return formatCount; }
    // The template of the index-th format entry.
    const std::string &getFormat(int index) const;

    // For each tick value, the index of the format that labels it, or
    // getFormatCount() when a filter keeps only a minor tick, or -1 when none
    // keeps the tick.  valueSpacing is the distance of neighbouring ticks.
    std::vector<int> choose(const std::vector<double> &values, double valueSpacing) const;

private:
    struct Entry {
        bool isCondition;
        int filter;
        std::string format;
        int labelSpan;
        bool promoteFirst;
        FormatCondition condition;
    };

    void promoteFirstLabel(std::vector<int> &chosen) const;

    std::vector<Entry> entries;
    std::vector<int> formatEntries;  // entries index of each format
    int formatCount = 0;
    bool multiFormatMode = false;
};
