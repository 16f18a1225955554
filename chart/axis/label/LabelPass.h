#pragma once

class Formatter;
class LabelFormatList;
class TemplateFieldSource;
class TickMap;

// Writes the label text of every tick that still needs one: the decimals the
// values need, the date or number default or the format entries that pick each
// tick, and the marks at the start of a format.
class LabelPass {
public:
    struct Context {
        Formatter *formatter;
        TemplateFieldSource *fields;  // may be null
        const LabelFormatList *formats;
        double tickStep;
        // Labels have room along the axis (date and time go on two lines).
        bool wideSpacing;
    };

    explicit LabelPass(const Context &context) : context(context) {}

    void run(TickMap &ticks) const;

private:
    Context context;
};
