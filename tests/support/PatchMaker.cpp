#include "tests/support/PatchMaker.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <stdexcept>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <zstd.h>

#include "patcher/format/PatchFile.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

namespace fs = std::filesystem;
using patch::Entry;
using patch::Kind;
using patch::Method;

namespace {

patch::View viewOf(const std::string& text) {
    return std::as_bytes(std::span(text));
}

struct stat statusOf(const fs::path& path) {
    struct stat status{};
    if (::lstat(path.c_str(), &status) != 0)
        throw std::runtime_error("no status of " + path.string());
    return status;
}

std::vector<patch::Attribute> attributesOf(const fs::path& path) {
    std::vector<patch::Attribute> attributes;
    char names[4096];
    const ssize_t length = ::llistxattr(path.c_str(), names, sizeof names);
    for (const char* name = names; name < names + length; name += std::string(name).size() + 1) {
        if (!std::string(name).starts_with("user."))
            continue;
        patch::Bytes value(4096);
        value.resize(
            static_cast<std::size_t>(::lgetxattr(path.c_str(), name, value.data(), value.size())));
        attributes.push_back({name, value});
    }
    std::ranges::sort(attributes, {}, &patch::Attribute::name);
    return attributes;
}

std::vector<Entry> entriesOf(const fs::path& top) {
    std::vector<Entry> entries;
    for (const auto& item : fs::recursive_directory_iterator(top)) {
        Entry entry;
        entry.path = item.path().lexically_relative(top).string();
        const struct stat status = statusOf(item.path());
        if (S_ISLNK(status.st_mode)) {
            entry.kind = Kind::link;
            entry.target = fs::read_symlink(item.path()).string();
        } else {
            entry.kind = S_ISDIR(status.st_mode) ? Kind::folder : Kind::file;
            entry.mode = status.st_mode & 07777;
            entry.attributes = attributesOf(item.path());
        }
        if (entry.kind == Kind::file) {
            entry.size = static_cast<std::uint64_t>(status.st_size);
            entry.digest = patch::digestOf(viewOf(contentsOf(item.path())));
        }
        entries.push_back(std::move(entry));
    }
    std::ranges::sort(entries, patch::pathOrder, &Entry::path);
    return entries;
}

void addContent(UnsignedPatch& patch, patch::NewEntry& fresh, const fs::path& file) {
    if (fresh.entry.size == 0)
        return;
    const auto& old = patch.manifest.oldEntries;
    const auto like = std::ranges::find_if(old, [&](const Entry& entry) {
        return entry.kind == Kind::file && entry.digest == fresh.entry.digest;
    });
    if (like != old.end()) {
        fresh.method = Method::old;
        fresh.base = static_cast<std::uint32_t>(like - old.begin());
        return;
    }
    const std::string content = contentsOf(file);
    patch::Bytes block(ZSTD_compressBound(content.size()));
    block.resize(ZSTD_compress(block.data(), block.size(), content.data(), content.size(), 1));
    fresh.method = Method::whole;
    fresh.offset = patch.data.size();
    fresh.length = block.size();
    patch.data.insert(patch.data.end(), block.begin(), block.end());
}

} // namespace

UnsignedPatch patchBetween(const fs::path& before, const fs::path& after) {
    UnsignedPatch patch;
    patch.manifest.product = "Scrivel";
    patch.manifest.oldVersion = "1";
    patch.manifest.newVersion = "2";
    const auto& old = patch.manifest.oldEntries = entriesOf(before);
    for (const Entry& entry : entriesOf(after)) {
        patch::NewEntry fresh;
        fresh.entry = entry;
        const Entry* same = patch::entryAt(old, entry.path);
        if (same != nullptr && *same == entry) {
            fresh.unchanged = static_cast<std::uint32_t>(same - old.data());
            if (entry.kind == Kind::file && entry.size > 0) {
                fresh.method = Method::old;
                fresh.base = *fresh.unchanged;
            }
        } else {
            const struct stat status = statusOf(after / entry.path);
            fresh.modified = {status.st_mtim.tv_sec,
                              static_cast<std::uint32_t>(status.st_mtim.tv_nsec)};
            if (entry.kind == Kind::file)
                addContent(patch, fresh, after / entry.path);
        }
        patch.manifest.newEntries.push_back(std::move(fresh));
    }
    return patch;
}

void writePatch(const UnsignedPatch& patch, const fs::path& file, const patch::Seed& seed) {
    patch::Header header;
    header.dataLength = patch.data.size();
    header.dataDigest = patch::digestOf(patch.data);
    const patch::Bytes manifest = patch::storedManifest(patch.manifest, header);
    std::ofstream stream(file, std::ios::binary);
    const auto put = [&](patch::View bytes) {
        stream.write(reinterpret_cast<const char*>(bytes.data()),
                     static_cast<std::streamsize>(bytes.size()));
    };
    put(patch::signedHeader(header, seed));
    put(patch.data);
    put(manifest);
    if (!stream.flush())
        throw std::runtime_error("can't write " + file.string());
}

patch::Seed testSeed(const fs::path& keyFile) {
    return patch::fromHexadecimal(contentsOf(keyFile));
}

} // namespace tests
