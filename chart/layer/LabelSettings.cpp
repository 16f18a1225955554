#include "chart/layer/LabelSettings.h"

#include <climits>

#include "text/box/TextBoxImpl2.h"

namespace {

// The key of an aggregate label that stands for every group at a position.
const int kAnyGroup = -1;

}  // namespace

LabelSettings::LabelSettings(BoxContainer *chart)
    : chart(chart),
      data{new TextBoxImpl(chart), std::string(), false},
      aggregate{new TextBoxImpl(chart), std::string(), false} {}

LabelSettings::~LabelSettings() {
    for (LabelMap *map : {&points, &aggregates, &groups})
        for (auto &entry : *map) entry.second->release();
    data.style->release();
    aggregate.style->release();
}

void LabelSettings::applyStyle(TextBoxImpl *box, const char *font, double fontSize, int fontColor,
                               double fontAngle) {
    box->setFontStyle(font ? font : "", 0);
    box->setFontSize(fontSize, 0);
    box->setFontColor(fontColor);
    box->setFontAngle(fontAngle, false);
}

void LabelSettings::Kind::setFormat(const char *text) {
    format = text ? text : "";
    asked = true;
}

TextBox *LabelSettings::Kind::setStyle(const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    applyStyle(style, font, fontSize, fontColor, fontAngle);
    asked = true;
    return style;
}

void LabelSettings::setDataFormat(const char *format) {
    data.setFormat(format);
}

TextBox *LabelSettings::setDataStyle(const char *font, double fontSize, int fontColor,
                                     double fontAngle) {
    return data.setStyle(font, fontSize, fontColor, fontAngle);
}

void LabelSettings::setAggregateFormat(const char *format) {
    aggregate.setFormat(format);
}

TextBox *LabelSettings::setAggregateStyle(const char *font, double fontSize, int fontColor,
                                          double fontAngle) {
    return aggregate.setStyle(font, fontSize, fontColor, fontAngle);
}

TextBoxImpl2 *LabelSettings::makeLabel(TextBoxImpl2 *&slot, TextBoxImpl *parent, const char *label,
                                       const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    // A second label for the same place takes over the box of the first, so
    // that a box handed out stays valid while its chart lives.
    if (!slot) slot = new TextBoxImpl2(chart, parent);
    slot->setText(label ? label : "");
    applyStyle(slot, font, fontSize, fontColor, fontAngle);
    return slot;
}

TextBox *LabelSettings::addCustomData(int dataSet, int dataItem, const char *label,
                                      const char *font, double fontSize, int fontColor,
                                      double fontAngle, TextBoxImpl *style) {
    return makeLabel(points[{dataSet, dataItem}], style ? style : data.style, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBox *LabelSettings::addCustomAggregate(int dataItem, const char *label, const char *font,
                                           double fontSize, int fontColor, double fontAngle) {
    return makeLabel(aggregates[{kAnyGroup, dataItem}], aggregate.style, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBox *LabelSettings::addCustomGroup(int dataGroup, int dataItem, const char *label,
                                       const char *font, double fontSize, int fontColor,
                                       double fontAngle) {
    return makeLabel(groups[{dataGroup, dataItem}], aggregate.style, label, font, fontSize,
                     fontColor, fontAngle);
}

TextBoxImpl2 *LabelSettings::customData(int dataSet, int dataItem) const {
    auto at = points.find({dataSet, dataItem});
    return at == points.end() ? nullptr : at->second;
}

// A group's own label wins over the one for every group at the position.
TextBoxImpl2 *LabelSettings::customAggregate(int dataGroup, int dataItem) const {
    auto at = groups.find({dataGroup, dataItem});
    if (at != groups.end()) return at->second;
    at = aggregates.find({kAnyGroup, dataItem});
    return at == aggregates.end() ? nullptr : at->second;
}

std::vector<int> LabelSettings::customDataItems(int dataSet) const {
    std::vector<int> items;
    for (auto it = points.lower_bound({dataSet, INT_MIN}); it != points.end(); ++it) {
        if (it->first.first != dataSet) break;
        items.push_back(it->first.second);
    }
    return items;
}
