#pragma once

#include "chart/legend/LegendText.h"

// The text of a key the user added: it stands for the key's data set name.
class UserLegendText : public LegendText {
public:
    explicit UserLegendText(const char *text) : text(text ? text : "") {}
    std::string getText(const char *templateText, int flags) override;

private:
    std::string text;
};
