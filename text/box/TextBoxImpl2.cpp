#include "text/box/TextBoxImpl2.h"

TextBoxImpl2::TextBoxImpl2(BoxContainer *container, TextBoxImpl *parent)
    : TextBoxImpl(container), parent(parent), canvas(nullptr) {}

const BoxImpl *TextBoxImpl2::styleOf(int style) const {
    if (isStyleSet(style) || !parent) return this;
    return parent->styleOf(style);
}

void TextBoxImpl2::layout(DrawArea *d) {
    if (d) canvas = d;
    TextBoxImpl::layout(d);
}

TTFText *TextBoxImpl2::getTextImpl() {
    if (!getTextObject() && canvas) layout(canvas);
    return getTextObject();
}

TextBoxImpl2 *TextBoxImpl2::copy() const {
    TextBoxImpl2 *box = new TextBoxImpl2(getContainer(), parent);
    box->copyBox(*this);
    box->copyText(*this);
    box->setZOrder(getZOrder());
    box->canvas = canvas;
    return box;
}
