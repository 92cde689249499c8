// A file of translations (scrivel_LANGUAGE.ts) as it stands in the sources, and what is wrong with
// it beside the catalogue. For the tests of the translations.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace catalogue {

struct Translation {
    std::string text;
    bool finished = true;
};

/// Translations by their keys.
using Translations = std::map<std::string, Translation>;

/// Reads the file; a file that can't be read or has a text twice throws.
Translations read(const std::string& path);

/// One line for each fault of the language: a text that it lacks, that the catalogue lacks, that is
/// empty or unfinished, or whose places or outer line feeds are not those of its key.
std::vector<std::string> faultsOf(const Translations& language, const Translations& english);

} // namespace catalogue
