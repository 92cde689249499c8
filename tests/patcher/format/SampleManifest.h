// A valid manifest with something of everything, and the parts that tests build others from.
#pragma once

#include <string_view>

#include "patcher/format/Manifest.h"
#include "tests/patcher/format/MemoryFile.h"

namespace patch {

inline Entry folderEntry(std::string path) {
    Entry entry;
    entry.path = std::move(path);
    entry.kind = Kind::folder;
    entry.mode = 0755;
    return entry;
}

inline Entry fileEntry(std::string path, std::string_view content) {
    Entry entry;
    entry.path = std::move(path);
    entry.mode = 0644;
    entry.size = content.size();
    entry.digest = digestOf(bytesOf(content));
    return entry;
}

inline Entry linkEntry(std::string path, std::string target) {
    Entry entry;
    entry.path = std::move(path);
    entry.kind = Kind::link;
    entry.target = std::move(target);
    return entry;
}

inline NewEntry made(Entry entry, Method method, std::uint32_t base = 0, std::uint64_t offset = 0,
                     std::uint64_t length = 0) {
    NewEntry fresh;
    fresh.entry = std::move(entry);
    fresh.modified = {1'700'000'000, 123'456'789};
    fresh.method = method;
    fresh.base = base;
    fresh.offset = offset;
    fresh.length = length;
    return fresh;
}

inline NewEntry kept(const Entry& entry, std::uint32_t index) {
    NewEntry fresh;
    fresh.entry = entry;
    fresh.unchanged = index;
    if (entry.size > 0) {
        fresh.method = Method::old;
        fresh.base = index;
    }
    return fresh;
}

inline constexpr std::uint64_t kSampleDataLength = 60;

inline Manifest sampleManifest() {
    Manifest manifest;
    manifest.product = "Scrivel 21";
    manifest.oldVersion = "21.0.0";
    manifest.newVersion = "21.0.1";
    Entry marked = fileEntry("a/marked", "m");
    marked.attributes = {{"user.one", bytesOf("1")}, {"user.two", {}}};
    const Entry beforeTheEpoch = fileEntry("new", "new content");
    manifest.oldEntries = {folderEntry("a"),
                           fileEntry("a/empty", ""),
                           marked,
                           folderEntry("a/nothing in it"),
                           fileEntry("a.c", "text"),
                           fileEntry("edited", "old text"),
                           linkEntry("link", "a/b"),
                           fileEntry("moved", "moved content"),
                           fileEntry("words", "few")};
    const auto& old = manifest.oldEntries;
    manifest.newEntries = {
        kept(old[0], 0),
        kept(old[1], 1),
        kept(old[2], 2),
        made(fileEntry("a/moved", "moved content"), Method::old, 7),
        made(fileEntry("a.c", "another text"), Method::whole, 0, 0, 20),
        made(fileEntry("edited", "new text"), Method::delta, 5, 20, 30),
        kept(old[6], 6),
        made(beforeTheEpoch, Method::dictionary, 8, 50, 10),
        made(fileEntry("void", ""), Method::nothing),
    };
    manifest.newEntries[7].modified = {-5, 0};
    manifest.categoryItems = {{"Botany 1", "a/marked"}};
    return manifest;
}

} // namespace patch
