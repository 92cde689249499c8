// Makes the seeds of the targets of applyPatch anew, for when the format or the copy of the targets
// has changed: patches of real versions of that copy, made by makePatch.
//
//   apply_seeds MAKE_PATCH SEEDS_FOLDER
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "fuzz/patcher/ApplyStage.h"
#include "patcher/format/Signature.h"
#include "tests/patcher/format/MemoryFile.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

struct Version {
    const char* name;
    std::function<void(const fs::path&)> change;
};

void write(const fs::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

void edit(const fs::path& file) {
    std::string content = tests::contentsOf(file);
    content.insert(content.size() / 2, "something in between");
    content[10] = '?';
    write(file, content);
}

const Version kVersions[] = {
    {"edits",
     [](const fs::path& top) {
         edit(top / "app/program");
         edit(top / "app/text");
     }},
    {"comes_and_goes",
     [](const fs::path& top) {
         fs::remove(top / "gone");
         write(top / "new", "all of it is new");
         fs::create_directories(top / "also/new");
         write(top / "also/new/empty", "");
     }},
    {"moves",
     [](const fs::path& top) {
         fs::rename(top / "deep/a", top / "app/a");
         fs::rename(top / "docs/read me", top / "docs/READ ME");
     }},
    {"kinds",
     [](const fs::path& top) {
         fs::remove(top / "gone");
         fs::create_directory(top / "gone");
         write(top / "gone/file", "where a file was");
         fs::remove(top / "link");
         write(top / "link", "where a link was");
         fs::remove_all(top / "hollow");
         fs::create_symlink("app", top / "hollow");
     }},
    {"modes",
     [](const fs::path& top) {
         fs::permissions(top / "app/program", fs::perms(04755));
         fs::permissions(top / "deep", fs::perms(0700));
     }},
};

std::string textOf(patch::View bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// As ApplyFuzz reads it.
std::string opened(const patch::Bytes& file) {
    const patch::MemoryFile memory(file);
    const patch::PatchReader reader(memory, patch::publicKeyOf(fuzz::key()));
    const std::string manifest = textOf(patch::encoded(reader.manifest()));
    std::uint64_t dataLength = 0;
    for (const patch::NewEntry& entry : reader.manifest().newEntries)
        dataLength = std::max(dataLength, entry.offset + entry.length);
    const std::string length{static_cast<char>(manifest.size() & 0xFF),
                             static_cast<char>(manifest.size() >> 8)};
    return length + manifest +
           textOf(patch::View(file).subspan(patch::kHeaderLength,
                                            static_cast<std::size_t>(dataLength)));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: apply_seeds MAKE_PATCH SEEDS_FOLDER\n");
        return 2;
    }
    const tests::TemporaryFolder folder;
    fuzz::writeInstalled(folder.path("before"));
    for (const Version& version : kVersions) {
        const std::string after = folder.path(version.name);
        fuzz::writeInstalled(after);
        version.change(after);
        const std::string file = folder.path("patch");
        const std::string command = std::string("'") + argv[1] + "' '" + folder.path("before") +
                                    "' '" + after + "' -o '" + file + "'";
        if (std::system(command.c_str()) != 0)
            return 1;
        const patch::Bytes bytes = patch::bytesOf(tests::contentsOf(file));
        const fs::path seeds = argv[2];
        fs::create_directories(seeds / "fuzz_apply");
        fs::create_directories(seeds / "fuzz_patch_file");
        write(seeds / "fuzz_apply" / version.name, opened(bytes));
        write(seeds / "fuzz_patch_file" / version.name, textOf(bytes));
        fs::remove(file);
    }
    return 0;
}
