#include "fuzz/patcher/ApplyStage.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zstd.h>

#include "patcher/format/Signature.h"
#include "tests/patcher/format/MemoryFile.h"
#include "tools/applyPatch/Update.h"
#include "tools/files/Descriptor.h"
#include "tools/files/FileError.h"
#include "tools/patchTree/TreeReader.h"

// There where a sanitizer is linked in.
extern "C" [[gnu::weak]] void __sanitizer_set_report_fd(void* file);

namespace fuzz {

namespace {

namespace fs = std::filesystem;

/// Without this the target would end silently, or only with the harness's own line.
[[noreturn]] void complain(const std::string& text) {
    std::fprintf(stderr, "applyPatch: %s\n", text.c_str());
    std::abort();
}

const std::map<std::string, std::string>& contents() {
    static const std::map<std::string, std::string> all = [] {
        std::string text;
        for (int line = 0; line < 60; ++line)
            text += "Line " + std::to_string(line * line) + " of a text that has its like.\n";
        std::string binary;
        for (int i = 0; i < 3000; ++i)
            binary += static_cast<char>(i * i / 7 + i);
        return std::map<std::string, std::string>{{"app/program", binary},
                                                  {"app/empty", ""},
                                                  {"app/text", text},
                                                  {"deep/a/b/file", "deep down"},
                                                  {"docs/read me", "Read me first."},
                                                  {"gone", "soon"}};
    }();
    return all;
}

/// What is written there is seen by nobody while this lives: a finding a run is enough.
class QuietErrors {
  public:
    QuietErrors() {
        static const int kept = [] {
            const int file = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 100);
            if (__sanitizer_set_report_fd != nullptr)
                __sanitizer_set_report_fd(reinterpret_cast<void*>(static_cast<long>(file)));
            return file;
        }();
        static const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        m_kept = kept;
        ::dup2(nowhere, STDERR_FILENO);
    }
    ~QuietErrors() { ::dup2(m_kept, STDERR_FILENO); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

  private:
    int m_kept;
};

std::vector<patch::Entry> entriesOf(const std::string& folder) {
    const tools::Descriptor top(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!top.isOpen())
        complain(folder + " is gone");
    const tools::TreeReader reader(top.number());
    tools::Tree tree = reader.list();
    reader.addDigests(tree);
    return std::move(tree.entries);
}

bool hasSameContent(const patch::Entry& one, const patch::Entry& other) {
    return one.kind == other.kind && one.size == other.size && one.digest == other.digest &&
           one.target == other.target;
}

} // namespace

struct ApplyStage::Listing {
    const std::vector<patch::Entry>& entries;

    /// A folder with something in it.
    bool holdsSomething(const patch::Entry& entry) const {
        return entry.kind == patch::Kind::folder &&
               std::ranges::any_of(entries, [&](const patch::Entry& other) {
                   return other.path.starts_with(entry.path + "/");
               });
    }
};

void writeInstalled(const fs::path& folder) {
    for (const auto& [path, content] : contents()) {
        fs::create_directories((folder / path).parent_path());
        std::ofstream(folder / path, std::ios::binary) << content;
        ::chmod((folder / path).c_str(), path == "app/program" ? 0755 : 0644);
    }
    fs::create_directory(folder / "hollow");
    for (const char* path : {"app", "deep", "deep/a", "deep/a/b", "docs", "hollow"})
        ::chmod((folder / path).c_str(), 0755);
    // Where a program that follows links would be led out.
    fs::create_symlink("../../outside", folder / "link");
    fs::create_symlink("../../../outside/file", folder / "app/alias");
}

std::optional<std::string> installedContent(const std::string& path) {
    const auto found = contents().find(path);
    return found == contents().end() ? std::nullopt : std::optional(found->second);
}

const patch::Seed& key() {
    static const patch::Seed seed =
        patch::fromHexadecimal(tests::contentsOf(SCRIVEL_PATCH_TEST_KEY));
    return seed;
}

patch::Bytes sealed(patch::View manifest, patch::View data) {
    patch::Bytes stored(ZSTD_compressBound(manifest.size()));
    stored.resize(ZSTD_compress(stored.data(), stored.size(), manifest.data(), manifest.size(), 1));
    const auto header = patch::signedHeader({.dataLength = data.size(),
                                             .manifestLength = stored.size(),
                                             .unpackedManifestLength = manifest.size(),
                                             .dataDigest = patch::digestOf(data),
                                             .manifestDigest = patch::digestOf(stored)},
                                            key());
    patch::Bytes file(header.size() + data.size() + stored.size());
    auto end = std::ranges::copy(header, file.begin()).out;
    end = std::ranges::copy(data, end).out;
    std::ranges::copy(stored, end);
    return file;
}

ApplyStage::ApplyStage()
    : m_folder(::access("/dev/shm", W_OK) == 0 ? fs::path("/dev/shm") : fs::temp_directory_path()) {
    ::umask(0);
    std::cout.rdbuf(nullptr);
    m_folder.write("outside/file", "nobody's business");
    m_folder.write("outside/folder/file", "nor this");
    m_outside = entriesOf(m_folder.path("outside"));
    restore();
    m_before = entriesOf(copy());
}

void ApplyStage::restore() {
    fs::remove_all(m_folder.path("place"));
    fs::create_directories(copy());
    writeInstalled(copy());
    m_folder.write("place/copy/docs/mine", "the user's own");
}

void ApplyStage::apply(patch::Bytes file) {
    const patch::MemoryFile source(std::move(file));
    std::optional<patch::PatchReader> reader;
    bool succeeded = false;
    std::string unexpected;
    {
        const QuietErrors quiet;
        try {
            reader.emplace(source, patch::publicKeyOf(key()));
            const tools::InstalledCopy installed(copy());
            tools::Progress progress;
            tools::Complaints complaints("applyPatch");
            succeeded = tools::Update({.patch = *reader,
                                       .copy = installed,
                                       .progress = progress,
                                       .complaints = complaints})
                            .apply() == tools::Ending::done;
        } catch (const patch::FormatError&) {
        } catch (const tools::ApplyError&) {
        } catch (const std::exception& error) {
            unexpected = error.what();
        }
    }
    if (!unexpected.empty())
        complain("an error of a kind that main has no sentence for: " + unexpected);
    judge(succeeded, reader ? &reader->manifest() : nullptr);
}

void ApplyStage::judge(bool succeeded, const patch::Manifest* manifest) {
    if (entriesOf(m_folder.path("outside")) != m_outside)
        complain("what is outside was touched");
    if (m_folder.names("place") != std::vector<std::string>{"copy"})
        complain("something lies beside the copy");
    const std::vector<patch::Entry> now = entriesOf(copy());
    const bool isOld = now == m_before;
    if (succeeded)
        requireNew({now}, *manifest);
    else if (!isOld)
        complain("the copy is neither the old version nor the new one");
    if (!isOld)
        restore();
}

void ApplyStage::requireNew(const Listing& now, const patch::Manifest& manifest) const {
    for (const patch::NewEntry& wanted : manifest.newEntries) {
        const patch::Entry* found = patch::entryAt(now.entries, wanted.entry.path);
        if (found == nullptr || !hasSameContent(*found, wanted.entry))
            complain("done, but " + wanted.entry.path + " is not as the patch has it");
    }
    for (const patch::Entry& entry : now.entries)
        if (patch::entryAt(manifest.newEntries, entry.path) == nullptr &&
            patch::entryAt(manifest.oldEntries, entry.path) != nullptr &&
            !now.holdsSomething(entry))
            complain("done, but " + entry.path + " is still there");
    for (const patch::Entry& entry : m_before) // what is the user's stays, as it was
        if (patch::entryAt(manifest.oldEntries, entry.path) == nullptr &&
            patch::entryAt(manifest.newEntries, entry.path) == nullptr) {
            const patch::Entry* found = patch::entryAt(now.entries, entry.path);
            if (found == nullptr || *found != entry)
                complain("done, but the user's " + entry.path + " is not as it was");
        }
}

} // namespace fuzz
