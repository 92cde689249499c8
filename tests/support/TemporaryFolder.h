// A folder of a test's own, gone with everything in it when the test is over. For every room's
// tests, as a member of a fixture or a local variable.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace tests {

/// The file's bytes; none when it can't be read.
inline std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

class TemporaryFolder {
  public:
    TemporaryFolder() : TemporaryFolder(std::filesystem::temp_directory_path()) {}
    /// In that folder.
    explicit TemporaryFolder(const std::filesystem::path& place) {
        std::string name = (place / "scrivel-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_path = std::filesystem::canonical(name);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        openUp(m_path);
        std::filesystem::remove_all(m_path, ignored);
    }

    /// Without symbolic links on the way.
    std::string path() const { return m_path.string(); }
    std::string path(std::string_view name) const { return (m_path / name).string(); }

    /// Writes the file, with the folders on the way to it, and answers its path.
    std::string write(std::string_view name, std::string_view bytes) const {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream << bytes;
        if (!stream.flush())
            throw std::runtime_error("can't write " + file.string());
        return file.string();
    }

    /// The same for a file that may be run.
    std::string writeProgram(std::string_view name, std::string_view bytes) const {
        std::string file = write(name, bytes);
        std::filesystem::permissions(file, std::filesystem::perms(0755));
        return file;
    }

    std::string read(std::string_view name) const { return contentsOf(m_path / name); }

    /// The names in the folder or in a folder in it, sorted.
    std::vector<std::string> names(std::string_view folder = {}) const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(m_path / folder))
            all.push_back(entry.path().filename().string());
        std::ranges::sort(all);
        return all;
    }

  private:
    /// A test may have left folders that their owner can't look into or change.
    static void openUp(const std::filesystem::path& folder) {
        std::error_code ignored;
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
        for (const auto& entry : std::filesystem::directory_iterator(folder, ignored))
            if (!entry.is_symlink(ignored) && entry.is_directory(ignored))
                openUp(entry.path());
    }

    std::filesystem::path m_path;
};

} // namespace tests
