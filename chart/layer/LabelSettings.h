#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

class BoxContainer;
class TextBox;
class TextBoxImpl;
class TextBoxImpl2;

// The labels a layer was asked for: the format and style of data labels and
// of aggregate labels, and the labels given one by one.  A custom label reads
// what it does not set from the style of its kind.  Owns the styles.
class LabelSettings {
public:
    explicit LabelSettings(BoxContainer *chart);
    ~LabelSettings();
    LabelSettings(const LabelSettings &) = delete;
    LabelSettings &operator=(const LabelSettings &) = delete;

    // Sets the style of the box as a label style call gives it.
    static void applyStyle(TextBoxImpl *box, const char *font, double fontSize, int fontColor,
                           double fontAngle);

    void setDataFormat(const char *format);
    TextBox *setDataStyle(const char *font, double fontSize, int fontColor, double fontAngle);
    void setAggregateFormat(const char *format);
    TextBox *setAggregateStyle(const char *font, double fontSize, int fontColor, double fontAngle);
    // dataStyle is the style the label falls back on: its data set's.
    TextBox *addCustomData(int dataSet, int dataItem, const char *label, const char *font,
                           double fontSize, int fontColor, double fontAngle,
                           TextBoxImpl *dataStyle);
    TextBox *addCustomAggregate(int dataItem, const char *label, const char *font, double fontSize,
                                int fontColor, double fontAngle);
    TextBox *addCustomGroup(int dataGroup, int dataItem, const char *label, const char *font,
                            double fontSize, int fontColor, double fontAngle);

    TextBoxImpl *getDataStyle() const { return data.style; }
    TextBoxImpl *getAggregateStyle() const { return aggregate.style; }
    bool hasDataLabels() const { return data.asked; }
    bool hasAggregateLabels() const { return aggregate.asked; }
    const std::string &getDataFormat() const { return data.format; }
    const std::string &getAggregateFormat() const { return aggregate.format; }
    // Null when none was given.
    TextBoxImpl2 *customData(int dataSet, int dataItem) const;
    // The points of a data set that have labels of their own, in order.
    std::vector<int> customDataItems(int dataSet) const;
    TextBoxImpl2 *customAggregate(int dataGroup, int dataItem) const;

private:
    typedef std::map<std::pair<int, int>, TextBoxImpl2 *> LabelMap;

    // Data labels or aggregate labels: shown once a format or style is set.
    struct Kind {
        TextBoxImpl *style;
        std::string format;
        bool asked;

        void setFormat(const char *text);
        TextBox *setStyle(const char *font, double fontSize, int fontColor, double fontAngle);
    };

    TextBoxImpl2 *makeLabel(TextBoxImpl2 *&slot, TextBoxImpl *parent, const char *label,
                            const char *font, double fontSize, int fontColor, double fontAngle);

    BoxContainer *chart;
    Kind data;
    Kind aggregate;
    LabelMap points;
    LabelMap aggregates;
    LabelMap groups;
};
