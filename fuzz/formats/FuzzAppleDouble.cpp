// AppleDouble files from anywhere, as unpacking an archive meets them. What could be read must come
// back the same when it is written and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/formats/AppleDouble.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto value = formats::readAppleDouble(std::as_bytes(std::span(data, size)));
    if (value && formats::readAppleDouble(formats::writeAppleDouble(*value)) != value)
        std::abort();
    return 0;
}
