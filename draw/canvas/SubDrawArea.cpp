#include "draw/canvas/SubDrawArea.h"

#include "draw/list/MetaDraw.h"
#include "draw/pixel/ColorWords.h"

SubDrawArea::SubDrawArea(DrawAreaImpl *parent, int width, int height) : parent(parent) {
    getMetaDraw()->setParentList(parent->getMetaDraw());
    setSize(width, height, kTransparent);
}

ColorModel *SubDrawArea::colors() {
    return parent->colors();
}

DrawBMP *SubDrawArea::getTemplateRaster() {
    return parent->getRaster();
}
