// Raw words as a display list: the listing and the player must survive any
// stream.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "draw/list/MetaDrawImpl.h"
#include "foundation/Stream.h"
#include "tests/draw/list/NullBackEnd.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 1) return 0;
    static const char *const kOptions[] = {"", "bmpscale=2", "dpi=48", "bmpscale=0.5;dpi=300"};
    MetaDrawImpl *source = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    source->setSize(4, 4, 0);
    MetaDrawImpl *list = static_cast<MetaDrawImpl *>(MetaDraw::create(nullptr));
    list->setOutputOptions(kOptions[data[0] & 3]);
    list->setSize(64, 64, 0xffffff);
    list->mergeScaled(source, 0, 0, 4, 4, 0);

    std::vector<int> words((size - 1) / 4);
    if (!words.empty()) std::memcpy(words.data(), data + 1, words.size() * 4);
    list->appendRawWords(words.data(), (int)words.size());

    qlx::ostrstream out;
    list->writeListing(out);
    NullBackEnd nullBackEnd;
    int reached = list->play(&nullBackEnd, 0);
    list->play(&nullBackEnd, reached);
    list->destroyList();
    source->destroyList();
    return 0;
}
