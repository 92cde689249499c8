// makeArchive packs a folder into the zip archive that the installer ships.
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "platform/formats/ZipWriter.h"
#include "tools/makeArchive/TreePacker.h"

int main(int argc, char** argv) {
    CLI::App app("Packs a folder into a zip archive, the same tree into the same bytes.");
    std::string folder;
    std::string archive;
    std::optional<std::int64_t> time;
    int level = 9;
    app.add_option("FOLDER", folder, "The folder; its own name is each path's first component")
        ->required()
        ->check(CLI::ExistingDirectory);
    app.add_option("-o", archive, "The archive to write")->required();
    app.add_option("--time", time, "Seconds since 1970 for all members; without it each its own");
    app.add_option("--level", level, "How hard to pack, 0 to 12")->check(CLI::Range(0, 12));
    CLI11_PARSE(app, argc, argv);

    const std::string partial = archive + ".partial";
    try {
        std::ofstream file;
        file.exceptions(std::ios::badbit | std::ios::failbit);
        file.open(partial, std::ios::binary | std::ios::trunc);
        const auto sink = [&file](std::span<const std::byte> bytes) {
            file.write(reinterpret_cast<const char*>(bytes.data()),
                       static_cast<std::streamsize>(bytes.size()));
        };
        formats::ZipWriter writer(sink, {.level = level, .alwaysZip64 = false});
        tools::TreePacker(writer, time).add(folder);
        writer.finish();
        file.close();
        std::filesystem::rename(partial, archive);
    } catch (const std::exception& error) {
        std::error_code ignored;
        std::filesystem::remove(partial, ignored);
        std::cerr << "makeArchive: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
