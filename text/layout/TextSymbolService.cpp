#include "text/layout/TextSymbolService.h"

#include <atomic>

namespace {

std::atomic<TextSymbolService *> installedService{nullptr};

}  // namespace

void TextSymbolService::install(TextSymbolService *service) {
    installedService.store(service);
}

TextSymbolService *TextSymbolService::get() {
    return installedService.load();
}
