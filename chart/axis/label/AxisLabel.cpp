#include "chart/axis/label/AxisLabel.h"

#include <utility>

AxisLabel::AxisLabel(double value, const std::string &text, int flags)
    : value(value),
      text(text),
      flags(flags),
      formatIndex(0),
      textBox(nullptr),
      disposeTextBox(nullptr) {}

AxisLabel::~AxisLabel() {
    releaseTextBox();
}

AxisLabel::AxisLabel(AxisLabel &&other) noexcept
    : value(other.value),
      text(std::move(other.text)),
      flags(other.flags),
      formatIndex(other.formatIndex),
      textBox(other.textBox),
      disposeTextBox(other.disposeTextBox) {
    other.textBox = nullptr;
}

AxisLabel &AxisLabel::operator=(AxisLabel &&other) noexcept {
    if (this != &other) {
        releaseTextBox();
        value = other.value;
        text = std::move(other.text);
        flags = other.flags;
        formatIndex = other.formatIndex;
        textBox = other.textBox;
        disposeTextBox = other.disposeTextBox;
        other.textBox = nullptr;
    }
    return *this;
}

AxisLabel AxisLabel::copy() const {
    AxisLabel twin(value, text, flags);
    twin.formatIndex = formatIndex;
    return twin;
}

void AxisLabel::setTextBox(TextBox *box, TextBoxDisposer disposer) {
    releaseTextBox();
    textBox = box;
    disposeTextBox = disposer;
}

void AxisLabel::releaseTextBox() {
    if (textBox && disposeTextBox) disposeTextBox(textBox);
    textBox = nullptr;
}
