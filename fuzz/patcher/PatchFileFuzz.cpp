// Any bytes as a patch file: applyPatch refuses what its key's owner did not sign, and what is
// signed makes the copy the new version.
#include <cstddef>
#include <cstdint>
#include <span>

#include "fuzz/patcher/ApplyStage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
    static fuzz::ApplyStage stage;
    const patch::View bytes = std::as_bytes(std::span(input, size));
    stage.apply({bytes.begin(), bytes.end()});
    return 0;
}
