#pragma once

#include <string>

// Where the text of a legend key comes from: a user's string, a layer's data
// set, a sector.  The legend's template is filled from it.
class LegendText {
public:
    virtual ~LegendText() {}
    // The template with this key's attributes filled in; flags are the
    // template parser's escaping flags.
    virtual std::string getText(const char *templateText, int flags) = 0;
};
