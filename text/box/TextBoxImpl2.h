#pragma once

#include "text/box/TextBoxImpl.h"

// A text box made from a prototype, as data labels are made from their layer's
// label style: every setting it has not set itself is read from the parent.
// The text is made on the first request, on the canvas the box was last laid
// out or painted on.
class TextBoxImpl2 : public TextBoxImpl {
public:
    // parent may be null: the box then stands on its own settings.
    TextBoxImpl2(BoxContainer *container, TextBoxImpl *parent);

    const BoxImpl *styleOf(int style) const override;
    void layout(DrawArea *d) override;
    TextBoxImpl *getParent() const { return parent; }

    // The laid-out text, or null while no canvas is known or there is no text.
    TTFText *getTextImpl();
    // A box with the same settings and parent, not yet laid out.
    TextBoxImpl2 *copy() const;

private:
    TextBoxImpl *parent;
    DrawArea *canvas;
};
