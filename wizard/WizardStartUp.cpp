#include "wizard/WizardStartUp.h"

#include <filesystem>
#include <fstream>

namespace ec {

namespace fs = std::filesystem;

namespace {

/// Writes `text` to `path` so that the file is there whole or not at all.
void writeAtomically(const fs::path& path, const std::string& text) {
    fs::path temporary = path;
    temporary += ".new";
    std::error_code failure;
    {
        std::ofstream file(temporary, std::ios::binary);
        file << text;
        if (!file.flush())
            failure = std::make_error_code(std::errc::io_error);
    }
    if (!failure)
        fs::rename(temporary, path, failure);
    if (failure)
        fs::remove(temporary, failure);
}

} // namespace

bool WizardStartUp::isOnDiskImage() const {
    if (!m_session.m_execPath.starts_with(m_session.places.system("/Volumes/Scrivel")))
        return false;
    const fs::path probe = fs::path(m_session.m_appResourceDir) / ".testro";
    writeAtomically(probe, probe.string());
    std::error_code ignored;
    if (!fs::exists(probe, ignored))
        return true;
    fs::remove(probe, ignored);
    return false;
}

} // namespace ec
