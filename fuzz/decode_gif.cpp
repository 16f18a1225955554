#include "foundation/Constants.h"
#include "fuzz/DecodeFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    return fuzzDecode(data, size, kGIF);
}
