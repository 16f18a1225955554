#include "chart/layer/LabelSettings.h"

#include "text/box/TextBoxImpl2.h"

namespace {

// The key of an aggregate label that stands for every group at a position.
const int kAnyGroup = -1;

}  // namespace

LabelSettings::LabelSettings(BoxContainer *chart)
    : chart(chart),
      dataStyle(new TextBoxImpl(chart)),
      aggregateStyle(new TextBoxImpl(chart)),
      dataAsked(false),
      aggregateAsked(false) {}

LabelSettings::~LabelSettings() {
    for (LabelMap *map : {&data, &aggregates, &groups})
        for (auto &entry : *map) entry.second->release();
    dataStyle->release();
    aggregateStyle->release();
}

void LabelSettings::applyStyle(TextBoxImpl *box, const char *font, double fontSize, int fontColor,
                               double fontAngle) {
    box->setFontStyle(font ? font : "", 0);
    box->setFontSize(fontSize, 0);
    box->setFontColor(fontColor);
    box->setFontAngle(fontAngle, false);
}

void LabelSettings::setDataFormat(const char *format) {
    dataFormat = format ? format : "";
    dataAsked = true;
}

TextBox *LabelSettings::setDataStyle(const char *font, double fontSize, int fontColor,
                                     double fontAngle) {
    applyStyle(dataStyle, font, fontSize, fontColor, fontAngle);
    dataAsked = true;
    return dataStyle;
}

void LabelSettings::setAggregateFormat(const char *format) {
    aggregateFormat = format ? format : "";
    aggregateAsked = true;
}

TextBox *LabelSettings::setAggregateStyle(const char *font, double fontSize, int fontColor,
                                          double fontAngle) {
    applyStyle(aggregateStyle, font, fontSize, fontColor, fontAngle);
    aggregateAsked = true;
    return aggregateStyle;
}

TextBoxImpl2 *LabelSettings::makeLabel(TextBoxImpl2 *&slot, TextBoxImpl *parent, const char *label,
                                       const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    // A second label for the same place replaces the first.
    if (slot) slot->release();
    slot = new TextBoxImpl2(chart, parent);
    slot->setText(label ? label : "");
    applyStyle(slot, font, fontSize, fontColor, fontAngle);
    return slot;
}

TextBox *LabelSettings::addCustomData(int dataSet, int dataItem, const char *label,
                                      const char *font, double fontSize, int fontColor,
                                      double fontAngle, TextBoxImpl *style) {
    return makeLabel(data[{dataSet, dataItem}], style ? style : dataStyle, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBox *LabelSettings::addCustomAggregate(int dataItem, const char *label, const char *font,
                                           double fontSize, int fontColor, double fontAngle) {
    return makeLabel(aggregates[{kAnyGroup, dataItem}], aggregateStyle, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBox *LabelSettings::addCustomGroup(int dataGroup, int dataItem, const char *label,
                                       const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    return makeLabel(groups[{dataGroup, dataItem}], aggregateStyle, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBoxImpl2 *LabelSettings::customData(int dataSet, int dataItem) const {
    auto at = data.find({dataSet, dataItem});
    return at == data.end() ? nullptr : at->second;
}

// A group's own label wins over the one for every group at the position.
TextBoxImpl2 *LabelSettings::customAggregate(int dataGroup, int dataItem) const {
    auto at = groups.find({dataGroup, dataItem});
    if (at != groups.end()) return at->second;
    at = aggregates.find({kAnyGroup, dataItem});
    return at == aggregates.end() ? nullptr : at->second;
}
