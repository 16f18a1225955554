#include "chart/xy/LayerMakers.h"

#include <atomic>

namespace {

std::atomic<LayerMakers *> installedMakers{nullptr};

}  // namespace

void LayerMakers::install(LayerMakers *makers) {
    installedMakers.store(makers);
}

LayerMakers *LayerMakers::get() {
    return installedMakers.load();
}
