#pragma once

#include <string>

class TextBox;

// One tick of an axis: the value its label shows, the label text, how it is drawn,
// and the text box painting made for it.
class AxisLabel {
public:
    enum Flags {
        kMinorTick = 1,   // minor tick length, width and colour
        kNoTickMark = 2,  // no tick mark
        kNoLabel = 4,     // no label
        kScaleTick = 8,   // made by the scale, not by the caller
        kFinalText = 16,  // the label pass leaves the text as it is
    };
    // Releases a text box made by the painter.
    using TextBoxDisposer = void (*)(TextBox *);

    explicit AxisLabel(double value = 0, const std::string &text = std::string(), int flags = 0);
    ~AxisLabel();
    AxisLabel(AxisLabel &&other) noexcept;
    AxisLabel &operator=(AxisLabel &&other) noexcept;
    AxisLabel(const AxisLabel &) = delete;
    AxisLabel &operator=(const AxisLabel &) = delete;

    // The same tick without the text box, which stays with this one.
    AxisLabel copy() const;

    TextBox *getTextBox() const { return textBox; }
    // Takes ownership; a former box is released first.
    void setTextBox(TextBox *box, TextBoxDisposer disposer);
    void releaseTextBox();

    double value;
    std::string text;
    int flags;
    // Counted from the last format entry: the entry count - 1 - the entry's index.
    int formatIndex;

private:
    TextBox *textBox;
    TextBoxDisposer disposeTextBox;
};
