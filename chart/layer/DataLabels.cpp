#include "chart/layer/DataLabels.h"

#include <string>

#include "chart/layer/DataSetImpl.h"
#include "chart/layer/LayerImpl.h"
#include "chart/layer/SpotAlignment.h"
#include "chart/xy/XYChartImpl.h"
#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/DrawObj.h"
#include "text/box/TextBoxImpl2.h"

// A label box with the colour that kSameAsMainColor stands for while it paints.
class DataLabels::Label : public DrawObj {
public:
    Label(TextBoxImpl2 *box, int mainColor) : box(box), mainColor(mainColor) {
        setZOrder(box->getZOrder());
    }
    ~Label() override { box->release(); }
    void release() override { delete this; }
    void paint(DrawArea *d) override {
        d->setColorTable(kSameAsMainColor & 0xFFFF, mainColor);
        box->paint(d);
    }
    TextBoxImpl2 *getBox() const { return box; }

private:
    TextBoxImpl2 *box;
    int mainColor;
};

namespace {

const char *const kDefaultLabel = "{value}";

const char *firstTemplate(const std::string &a, const std::string &b, const std::string &c) {
    if (!a.empty()) return a.c_str();
    if (!b.empty()) return b.c_str();
    return !c.empty() ? c.c_str() : kDefaultLabel;
}

}  // namespace

void DataLabels::clear() {
    for (Label *label : labels) label->release();
    labels.clear();
}

TextBoxImpl2 *DataLabels::getLabel(int i) const {
    return labels[i]->getBox();
}

TextBoxImpl *DataLabels::styleOf(const LabelSpot &spot, const char **templateText) const {
    const LabelSettings &labels = layer->getLabels();
    static const std::string none;
    if (spot.aggregate) {
        TextBoxImpl2 *custom = labels.customAggregate(spot.dataGroup, spot.dataItem);
        if (!custom && !labels.hasAggregateLabels()) return nullptr;
        *templateText =
            firstTemplate(custom ? custom->getText() : none, labels.getAggregateFormat(), none);
        return custom ? custom : labels.getAggregateStyle();
    }
    DataSetImpl *set = layer->dataSetAt(spot.dataSet);
    if (!set) return nullptr;
    TextBoxImpl2 *custom = labels.customData(spot.dataSet, spot.dataItem);
    if (!custom && !set->hasLabels() && !labels.hasDataLabels()) return nullptr;
    *templateText = firstTemplate(custom ? custom->getText() : none, set->getLabelFormat(),
                                  labels.getDataFormat());
    return custom ? static_cast<TextBoxImpl *>(custom) : set->getLabelStyle();
}

void DataLabels::make(const std::vector<LabelSpot> &spots) {
    clear();
    for (const LabelSpot &spot : spots) makeLabel(spot);
}

void DataLabels::makeLabel(const LabelSpot &spot) {
    const char *templateText = nullptr;
    TextBoxImpl *style = styleOf(spot, &templateText);
    if (!style) return;
    // An aggregate takes the colour of the set at its end.
    DataSetImpl *set = layer->dataSetAt(spot.dataSet);
    int mainColor = set ? set->getDataColor() : kTransparent;
    int fontColor = style->getFontColor();
    if (fontColor == kSameAsMainColor) fontColor = mainColor;
    if (layer->getDrawArea()->getARGBColor(fontColor) == kTransparent) return;
    std::string text = layer->fillTemplate(templateText, 0, spot);
    if (text.empty()) return;
    // The label's own alignment, if its style chain set one, is read for an
    // upward spot.
    const BoxImpl *aligned = style->styleOf(BoxImpl::kAlignmentStyle);
    int alignment = aligned->isStyleSet(BoxImpl::kAlignmentStyle) ? style->getAlignment()
                                                                  : SpotAlignment::kDefault;
    int x, y, boxAlignment;
    SpotAlignment::place(spot, alignment, &x, &y, &boxAlignment);
    TextBoxImpl2 *box = new TextBoxImpl2(layer->getChart(), style);
    box->setText(text.c_str());
    box->setPos(x, y);
    box->setAlignment(boxAlignment);
    box->setAnchored(true);
    box->setZOrder(style->getZOrder());
    if (spot.keepInside) keepInside(box, spot, x, y, boxAlignment);
    labels.push_back(new Label(box, mainColor));
}

// Alignments 1 to 9 in columns: the box starts at its anchor, is centred on
// it, or ends at it.
void DataLabels::keepInside(TextBoxImpl2 *box, const LabelSpot &spot, int x, int y,
                            int alignment) const {
    if (alignment < 1 || alignment > 9) return;
    box->layout(layer->getDrawArea());
    int width = box->getWidth(), column = (alignment - 1) % 3;
    int left = x - (column == 0 ? 0 : column == 1 ? width / 2 : width);
    int moved = alignment;
    if (left < spot.insideLeft && column > 0)
        moved = alignment - column;
    else if (left + width > spot.insideRight && column < 2)
        moved = alignment + 2 - column;
    if (moved == alignment) return;
    // Laying out moved the box from its anchor: back to it.
    box->resetLayout();
    box->setPos(x, y);
    box->setAlignment(moved);
}

void DataLabels::addTo(std::vector<DrawObj *> &objects) const {
    objects.insert(objects.end(), labels.begin(), labels.end());
}
