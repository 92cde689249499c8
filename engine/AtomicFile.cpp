#include "engine/AtomicFile.h"

#include <filesystem>
#include <fstream>

namespace ec {

bool writeAtomically(const std::string& path, std::string_view bytes) {
    const std::string temporary = path + ".new";
    std::error_code failure;
    std::filesystem::remove(temporary, failure); // also a link that somebody else put there
    if (failure)
        return false;
    {
        std::ofstream file(temporary, std::ios::binary);
        file << bytes;
        if (!file.flush())
            failure = std::make_error_code(std::errc::io_error);
    }
    if (!failure)
        std::filesystem::rename(temporary, path, failure);
    if (!failure)
        return true;
    std::filesystem::remove(temporary, failure);
    return false;
}

} // namespace ec
