// Resource forks from anywhere, and what stands in them: 'vers', 'alis' and 'icns'. The bytes are
// also given to those readers as they stand. What could be read must come back the same when it is
// written and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <stdexcept>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/IconFamily.h"
#include "platform/formats/ResourceFork.h"
#include "platform/formats/VersionResource.h"

namespace {

using Input = std::span<const std::byte>;

void require(bool holds) {
    if (!holds)
        std::abort();
}

void checkContents(Input bytes) {
    const auto version = formats::readVersionResource(bytes);
    if (version)
        require(formats::readVersionResource(formats::writeVersionResource(*version)) == version);
    require(formats::versionBytes(bytes).has_value() == (bytes.size() >= 4));
    const auto types = formats::iconFamilyElements(bytes);
    require(!types || types->size() <= bytes.size() / 8);
    // Text that is not well formed changes on its way, so that only a second round must be the
    // same.
    if (const auto alias = formats::readAliasRecord(bytes)) {
        try {
            const auto again = formats::readAliasRecord(formats::writeAliasRecord(*alias));
            require(again && again->number == alias->number && again->path == alias->path);
        } catch (const std::length_error&) {
            // Mac Roman names grow in UTF-8.
        }
    }
}

void checkFork(Input bytes) {
    const auto resources = formats::readResourceFork(bytes);
    if (!resources)
        return;
    for (const formats::Resource& resource : *resources) {
        require(formats::findResource(bytes, resource.type, resource.number).has_value());
        checkContents(resource.data);
    }
    try {
        const auto again = formats::readResourceFork(formats::writeResourceFork(*resources));
        require(again && again->size() == resources->size());
        require(std::ranges::is_permutation(*again, *resources));
    } catch (const std::length_error&) {
        // Names that are shared in the map take their own room when they are written.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Input bytes = std::as_bytes(std::span(data, size));
    checkContents(bytes);
    checkFork(bytes);
    return 0;
}
