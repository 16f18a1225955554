#include "chart/axis/label/LabelFormatList.h"

#include <algorithm>

#include "chart/axis/label/LabelFilter.h"
#include "foundation/Constants.h"

namespace {

std::string trimBlanks(const char *text) {
    std::string s = text;
    size_t first = s.find_first_not_of(" \t");
    if (first == std::string::npos) return std::string();
    size_t last = s.find_last_not_of(" \t");
    return s.substr(first, last - first + 1);
}

}  // namespace

void LabelFormatList::setLabelFormat(const char *format) {
    if (!multiFormatMode) {
        entries.clear();
        formatEntries.clear();
        formatCount = 0;
    }
    entries.push_back({false, 0, format ? format : "", 1, false, FormatCondition("", 0)});
    formatEntries.push_back((int)entries.size() - 1);
    ++formatCount;
}

void LabelFormatList::addFormat(int filter, const char *format, int labelSpan, bool promoteFirst) {
    multiFormatMode = true;
    entries.push_back({false, filter, format ? format : "", std::max(labelSpan, 1), promoteFirst,
                       FormatCondition("", 0)});
    formatEntries.push_back((int)entries.size() - 1);
    ++formatCount;
}

void LabelFormatList::addCondition(const char *condition, double operand) {
    multiFormatMode = true;
    if (!condition || !*condition || operand == kNoValue) return;
    entries.push_back(
        {true, 0, std::string(), 1, false, FormatCondition(trimBlanks(condition), operand)});
}

const std::string &LabelFormatList::getFormat(int index) const {
    return entries[formatEntries[index]].format;
}

std::vector<int> LabelFormatList::choose(const std::vector<double> &values,
                                         double valueSpacing) const {
    size_t n = values.size();
    std::vector<int> chosen(n, -1);
    std::vector<char> minorOnly(n, 0);
    std::vector<char> gate(n, 1);
    int index = 0;
    for (const Entry &entry : entries) {
        if (entry.isCondition) {
            for (size_t i = 0; i < n; ++i) gate[i] = entry.condition.holds(values[i], gate[i]);
            continue;
        }
        std::vector<LabelFilter::Choice> choices =
            LabelFilter(entry.filter).select(values, valueSpacing * entry.labelSpan);
        for (size_t i = 0; i < n; ++i) {
            if (chosen[i] >= 0 || !gate[i]) continue;
            if (choices[i] == LabelFilter::kSelected) chosen[i] = index;
            if (choices[i] == LabelFilter::kMinorOnly) minorOnly[i] = 1;
        }
        ++index;
    }
    for (size_t i = 0; i < n; ++i)
        if (chosen[i] < 0 && minorOnly[i]) chosen[i] = formatCount;
    promoteFirstLabel(chosen);
    return chosen;
}

// The first label takes the earliest format that promotes it, so that an axis
// starting between two periods still names the larger one.
void LabelFormatList::promoteFirstLabel(std::vector<int> &chosen) const {
    auto first = std::find_if(chosen.begin(), chosen.end(),
                              [this](int i) { return i >= 0 && i < formatCount; });
    if (first == chosen.end()) return;
    for (int i = 0; i < *first; ++i) {
        if (entries[formatEntries[i]].promoteFirst) {
            *first = i;
            return;
        }
    }
}
