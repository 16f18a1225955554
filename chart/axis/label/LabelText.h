#pragma once

#include <string>

// The marks a label text may begin with: "~" for no tick mark, "-" for a minor
// tick, a second "~" after either for no label, and a backslash before "~" or "-"
// to show the character itself.
namespace LabelText {

// The AxisLabel flags the text asks for (always with kFinalText), and in shown
// the text without its marks.  An empty or null text asks for no tick mark.
int readMarks(const char *text, std::string &shown);

}  // namespace LabelText
