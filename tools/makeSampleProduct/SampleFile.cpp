#include "tools/makeSampleProduct/SampleFile.h"

#include <array>
#include <fstream>
#include <stdexcept>

namespace tools {

void writeSample(const std::filesystem::path& path, std::string_view text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush())
        throw std::runtime_error(path.string() + ": can't be written");
}

std::string replaced(std::string_view text, std::string_view mark, std::string_view value) {
    std::string filled(text);
    for (std::size_t at; (at = filled.find(mark)) != std::string::npos;)
        filled.replace(at, mark.size(), value);
    return filled;
}

std::string citationStyle(std::string_view field, int number) {
    std::string text = "style: " + std::string(field) + " " + std::to_string(number) + "\n";
    unsigned state = 2166136261u;
    for (const char c : text)
        state = (state ^ static_cast<unsigned char>(c)) * 16777619u;
    static constexpr std::array<std::string_view, 8> kRules{
        "author, title. journal volume", "author (year) title",
        "title / author; year",          "author: title, in: journal",
        "journal volume:pages (year)",   "author. year. title. publisher",
        "abbreviate journal names",      "page range elided"};
    for (int line = 0; line < 12 + number % 40; ++line) {
        state = state * 1664525u + 1013904223u;
        text += "rule " + std::to_string(state % 9973) + ": " +
                std::string(kRules[state >> 16 & 7]) + "\n";
    }
    return text;
}

} // namespace tools
