// Makes the new files of a patch that have a block, without checking or flushing anything: what the
// decoding alone takes, for bench/patch.   applyBlocks OLD PATCH FOLDER
#include <algorithm>
#include <filesystem>
#include <iostream>

#include <fcntl.h>

#include "patcher/format/Block.h"
#include "patcher/format/PatchFile.h"
#include "tools/files/Descriptor.h"
#include "tools/files/Workers.h"
#include "tools/patchTree/FileSource.h"

namespace {

using namespace tools;

class FileSink : public patch::Sink {
  public:
    explicit FileSink(const std::filesystem::path& path)
        : m_file(checked(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644))) {
        m_waiting.reserve(kRoom);
    }
    void write(patch::View bytes) override {
        if (m_waiting.size() + bytes.size() > kRoom)
            flush();
        m_waiting.insert(m_waiting.end(), bytes.begin(), bytes.end());
    }
    void flush() {
        for (patch::View rest = m_waiting; !rest.empty();)
            rest = rest.subspan(static_cast<std::size_t>(
                checked(::write(m_file.number(), rest.data(), rest.size()))));
        m_waiting.clear();
    }

  private:
    static constexpr std::size_t kRoom = std::size_t{1} << 18;
    Descriptor m_file;
    patch::Bytes m_waiting;
};

Descriptor opened(const std::filesystem::path& path) {
    return Descriptor(checked(::open(path.c_str(), O_RDONLY | O_CLOEXEC)));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4)
        return 2;
    const std::filesystem::path old = argv[1];
    const std::filesystem::path folder = argv[3];
    try {
        const Descriptor file = opened(argv[2]);
        const FileSource source(file.number());
        const patch::PatchReader reader(source, patch::builtInKey());
        const patch::Manifest& manifest = reader.manifest();
        std::vector<const patch::NewEntry*> entries;
        for (const patch::NewEntry& entry : manifest.newEntries)
            if (patch::hasBlock(entry.method))
                entries.push_back(&entry);
        std::ranges::stable_sort(entries, std::greater{},
                                 [](const auto* entry) { return entry->entry.size; });
        onAllCores(entries.size(), [&](auto next) {
            for (std::size_t i = next(); i < entries.size(); i = next()) {
                const patch::NewEntry& entry = *entries[i];
                const std::filesystem::path path = folder / entry.entry.path;
                std::filesystem::create_directories(path.parent_path());
                const Descriptor base =
                    opened(patch::hasBase(entry.method) ? old / manifest.oldEntries[entry.base].path
                                                        : std::filesystem::path(argv[2]));
                FileSink sink(path);
                patch::makeContent(
                    entry.method,
                    {.patch = source, .offset = reader.blockOffset(entry), .length = entry.length},
                    FileSource(base.number()), entry.entry.size, sink);
                sink.flush();
            }
        });
    } catch (const std::exception& error) {
        std::cerr << "applyBlocks: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
