// Raw words as a display list played on the SVG and PDF back ends: whatever
// the records say, both must write a document and come back.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "draw/list/MetaDrawImpl.h"
#include "draw/pdf/DrawPDF.h"
#include "draw/svg/DrawSVG.h"
#include "foundation/Stream.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 1) return 0;
    static const char *const kOptions[] = {"", "precisetext", "dpi=72;pagewidth=900",
                                           "noxmldecl;nodoctype;width=50%"};
    MetaDrawImpl *source = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->setSize(4, 4, 0x00ff00);
    MetaDrawImpl *list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    list->setOutputOptions(kOptions[data[0] & 3]);
    list->setSize(64, 48, 0xffffff);
    list->mergeScaled(source, 2, 2, 8, 8, 0);

    std::vector<int> words((size - 1) / 4);
    if (!words.empty()) std::memcpy(words.data(), data + 1, words.size() * 4);
    list->appendRawWords(words.data(), (int)words.size());

    VectorBackEnd *outputs[2] = {DrawSVG::create(list), DrawPDF::create(list)};
    for (VectorBackEnd *out : outputs) {
        list->playAll(out);
        qlx::ostrstream bytes;
        out->write(bytes);
        delete out;
    }
    list->destroyList();
    source->destroyList();
    return 0;
}
