#include "engine/AtomicFile.h"

#include <cstdio>
#include <filesystem>

namespace ec {

bool writeAtomically(const std::string& path, std::string_view bytes) {
    namespace fs = std::filesystem;
    const std::string temporary = path + ".new";
    std::error_code failure;
    fs::remove(temporary, failure);
    // "x": never through a file or link that somebody put there in the meantime
    std::FILE* const file = failure ? nullptr : std::fopen(temporary.c_str(), "wbx");
    if (!file)
        return false;
    const bool isWhole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) == 0 && isWhole) {
        fs::rename(temporary, path, failure);
        if (!failure)
            return true;
    }
    fs::remove(temporary, failure);
    return false;
}

} // namespace ec
