#include "word/FolderListing.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ec {

std::vector<std::string> namesIn(const std::string& folder) {
    namespace fs = std::filesystem;
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        names.push_back(at->path().filename().string());
    std::ranges::sort(names);
    return names;
}

} // namespace ec
