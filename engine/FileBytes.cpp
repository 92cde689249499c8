#include "engine/FileBytes.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace ec {

std::string bytesOfFile(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored))
        return {};
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf(); // unlike the buffer's iterators this turns a failure into an end
    return std::move(bytes).str();
}

} // namespace ec
