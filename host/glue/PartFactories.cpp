#include "host/glue/PartFactories.h"

#include "host/abc/chart/Axis.h"
#include "host/abc/chart/LineObj.h"
#include "host/abc/chart/Mark.h"
#include "host/abc/pie/Sector.h"
#include "host/abc/xy/AreaLayer.h"
#include "host/abc/xy/BarLayer.h"
#include "host/abc/xy/DataSet.h"
#include "host/abc/xy/Layer.h"
#include "host/abc/xy/PlotArea.h"
#include "host/abc/xy/ScatterLayer.h"
#include "host/glue/Blocks.h"
#include "host/glue/ChartFactories.h"
#include "host/glue/ClassRegistry.h"
#include "host/glue/Factories.h"
#include "host/glue/WrapperSlots.h"

namespace {

// An object of the class whose block's wrapper slot is Slot.
template <class Block, class W>
REALobject newPartObject(const char *className, ClassId root, W *Block::*slot, W *wrapper,
                         REALobject owner, REALobject parent) {
    if (!wrapper) return nullptr;
    REALobject obj = newHostObject(className, root, owner, parent);
    if (obj) blockOf<Block>(obj, root)->*slot = wrapper;
    return obj;
}

// A layer kind with a host class of its own: the class, and where its block
// keeps the wrapper.
struct LayerClass {
    const char *className;
    // Stores the wrapper in the kind's slot; false when it is of another kind.
    bool (*install)(LayerBlock &block, abc::Layer *layer);
};

// The wrapper in each of the slots, when it is of all their kinds.
template <auto... Slots>
bool installKind(LayerBlock &block, abc::Layer *layer) {
    return (installAs<Slots>(block, layer) && ...);
}

// Tested in this order: a kind derived from another comes before it.
const LayerClass kLayerClasses[] = {
    {"VSBarLayerXPG", &installKind<&LayerBlock::barLayer>},
    {"VSScatterLayerXPG", &installKind<&LayerBlock::scatterLayer, &LayerBlock::lineLayer>},
    {"VSLineLayerXPG", &installKind<&LayerBlock::lineLayer>},
    {"VSAreaLayerXPG", &installKind<&LayerBlock::areaLayer>},
};

}  // namespace

REALobject NewAxisXPG(abc::Axis *axis, REALobject owner, REALobject parent) {
    return newPartObject("VSAxisXPG", ClassId::Axis, &AxisBlock::axis, axis, owner, parent);
}

REALobject NewPlotAreaXPG(abc::PlotArea *plotArea, REALobject owner, REALobject parent) {
    return newPartObject("VSPlotAreaXPG", ClassId::PlotArea, &HandleBlock<abc::PlotArea>::handle,
                         plotArea, owner, parent);
}

REALobject NewLayerXPG(abc::Layer *layer, REALobject owner, REALobject parent) {
    if (!layer) return nullptr;
    LayerBlock kind = {};
    const char *className = "VSLayerXPG";
    for (const LayerClass &c : kLayerClasses)
        if (c.install(kind, layer)) {
            className = c.className;
            break;
        }
    REALobject obj =
        newPartObject(className, ClassId::Layer, &LayerBlock::layer, layer, owner, parent);
    if (!obj) return nullptr;
    // The slots of the kind, copied into the object's block.
    LayerBlock *b = blockOf<LayerBlock>(obj, ClassId::Layer);
    kind.owner = b->owner;
    kind.parent = b->parent;
    kind.layer = layer;
    *b = kind;
    return obj;
}

REALobject NewBarLayerXPG(abc::BarLayer *layer, REALobject owner, REALobject parent) {
    return NewLayerXPG(layer, owner, parent);
}

REALobject NewLineLayerXPG(abc::LineLayer *layer, REALobject owner, REALobject parent) {
    return NewLayerXPG(layer, owner, parent);
}

REALobject NewScatterLayerXPG(abc::ScatterLayer *layer, REALobject owner, REALobject parent) {
    return NewLayerXPG(layer, owner, parent);
}

REALobject NewAreaLayerXPG(abc::AreaLayer *layer, REALobject owner, REALobject parent) {
    return NewLayerXPG(layer, owner, parent);
}

REALobject NewDataSetXPG(abc::DataSet *dataSet, REALobject owner, REALobject parent) {
    return newPartObject("VSDataSetXPG", ClassId::DataSet, &DataSetBlock::handle, dataSet, owner,
                         parent);
}

REALobject NewMarkXPG(abc::Mark *mark, REALobject owner, REALobject parent) {
    return newDrawObjXPG("VSMarkXPG", mark, owner, parent);
}

REALobject NewLineObjXPG(abc::LineObj *line, REALobject owner, REALobject parent) {
    return newPartObject("VSLineObjXPG", ClassId::LineObj, &HandleBlock<abc::LineObj>::handle, line,
                         owner, parent);
}

REALobject NewSectorXPG(abc::Sector *sector, REALobject owner, REALobject parent) {
    return newPartObject("VSSectorXPG", ClassId::Sector, &HandleBlock<abc::Sector>::handle, sector,
                         owner, parent);
}
