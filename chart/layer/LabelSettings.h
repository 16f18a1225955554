#pragma once

#include <map>
#include <string>
#include <utility>

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

    TextBoxImpl *getDataStyle() const { return dataStyle; }
    TextBoxImpl *getAggregateStyle() const { return aggregateStyle; }
    bool hasDataLabels() const { return dataAsked; }
    bool hasAggregateLabels() const { return aggregateAsked; }
    const std::string &getDataFormat() const { return dataFormat; }
    const std::string &getAggregateFormat() const { return aggregateFormat; }
    // Null when none was given.
    TextBoxImpl2 *customData(int dataSet, int dataItem) const;
    TextBoxImpl2 *customAggregate(int dataGroup, int dataItem) const;
    bool hasCustomAggregates() const { return !aggregates.empty() || !groups.empty(); }
    bool hasCustomData() const { return !data.empty(); }

private:
    typedef std::map<std::pair<int, int>, TextBoxImpl2 *> LabelMap;

    TextBoxImpl2 *makeLabel(TextBoxImpl2 *&slot, TextBoxImpl *parent, const char *label,
                            const char *font, double fontSize, int fontColor, double fontAngle);

    BoxContainer *chart;
    TextBoxImpl *dataStyle;
    TextBoxImpl *aggregateStyle;
    std::string dataFormat;
    std::string aggregateFormat;
    bool dataAsked;
    bool aggregateAsked;
    LabelMap data;
    LabelMap aggregates;
    LabelMap groups;
};
