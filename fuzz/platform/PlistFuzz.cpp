// Property lists from anywhere: whatever the bytes, reading them neither fails nor grows without
// bound. The inputs that the guard lets pass go through the library.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/posix/PlistReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto list = posix::PlistReader::read({reinterpret_cast<const char*>(data), size});
    if (list)
        (void)list->string("CFBundleIdentifier");
    return 0;
}
