// Reads the input as a zip archive's directory and holds the result to what the header promises.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/formats/ZipDirectory.h"

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto archive = std::as_bytes(std::span(data, size));
    const formats::ZipReading reading = formats::readZipDirectory(archive);
    if (!reading.directory) {
        require(!reading.error.empty());
        return 0;
    }
    const auto& folders = reading.directory->folders();
    const auto& members = reading.directory->members();
    for (std::size_t i = 1; i < folders.size(); ++i)
        require(folders[i].parent < i);
    std::uint64_t total = 0;
    for (const formats::ZipMember& member : members) {
        const std::string_view path = member.path;
        require(!path.empty() && path.size() <= 4096 && path.front() != '/');
        require(path.data()[path.size()] == '\0' && path.find('\0') == std::string_view::npos);
        require(("/" + std::string(path) + "/").find("/../") == std::string::npos);
        require(path.find('\\') == std::string_view::npos);
        require(member.folder < folders.size());
        require(member.describes == formats::ZipMember::kNone || member.describes < members.size());
        require(member.headerOffset + formats::kZipLocalHeaderLength + member.packedSize <= size);
        require(member.mode <= 0777);
        total += member.kind == formats::ZipKind::folder ? 0 : member.size;
        const auto header = archive.subspan(static_cast<std::size_t>(member.headerOffset))
                                .first<formats::kZipLocalHeaderLength>();
        if (const auto start = formats::zipDataStart(header, member))
            require(*start >= formats::kZipLocalHeaderLength);
    }
    require(total == reading.directory->totalSize() && total <= std::uint64_t{1032} * size);
    return 0;
}
