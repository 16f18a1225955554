#include "draw/pdf/PDFFontFiles.h"

#include <list>
#include <utility>

#include "draw/codec/ImageDecoder.h"
#include "foundation/Mutex.h"

namespace {

// Font files larger than this are not embedded.
const long long kMaxFontFile = 64LL << 20;
// Files kept for later documents, the most recent first.
const size_t kKeptFiles = 8;

qlx::Mutex embeddingMutex;
std::list<std::pair<std::string, PDFFontFiles::Bytes>> kept;

}  // namespace

PDFFontFiles::Bytes PDFFontFiles::load(const std::string &path) {
    if (path.empty()) return nullptr;
    qlx::MutexLock lock(embeddingMutex);
    for (auto it = kept.begin(); it != kept.end(); ++it)
        if (it->first == path) {
            kept.splice(kept.begin(), kept, it);
            return kept.front().second;
        }
    auto bytes =
        std::make_shared<std::vector<char>>(ImageDecoder::readFile(path.c_str(), kMaxFontFile));
    if (bytes->empty()) return nullptr;
    kept.emplace_front(path, bytes);
    if (kept.size() > kKeptFiles) kept.pop_back();
    return bytes;
}
