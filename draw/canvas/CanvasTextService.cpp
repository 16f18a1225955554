#include "draw/canvas/CanvasTextService.h"

#include <atomic>

namespace {

std::atomic<CanvasTextService *> installedService{nullptr};

}  // namespace

void CanvasTextService::install(CanvasTextService *service) {
    installedService.store(service);
}

CanvasTextService *CanvasTextService::get() {
    return installedService.load();
}
