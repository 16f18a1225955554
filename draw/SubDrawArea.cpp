#include "draw/SubDrawArea.h"

#include "draw/ColorWords.h"
#include "draw/MetaDraw.h"

SubDrawArea::SubDrawArea(DrawAreaImpl *parent, int width, int height) : parent(parent) {
    getMetaDraw()->setParentList(parent->getMetaDraw());
    setSize(width, height, kTransparent);
}

ColorModel *SubDrawArea::colors() {
    return parent->colors();
}

DrawBackEnd *SubDrawArea::getTemplateRaster() {
    return parent->getRaster();
}
