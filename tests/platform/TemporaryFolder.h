// A folder of its own for one test, gone with everything in it when the test is over.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name =
            (std::filesystem::temp_directory_path() / "scrivel-test-XXXXXX").string();
        m_path = std::filesystem::canonical(::mkdtemp(name.data()));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string path() const { return m_path.string(); }
    std::string path(std::string_view name) const { return (m_path / name).string(); }

    /// Writes the file, with the folders on the way to it, and answers its path.
    std::string write(std::string_view name, std::string_view bytes) const {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }

    /// The same for a file that may be run.
    std::string writeProgram(std::string_view name, std::string_view bytes) const {
        std::string file = write(name, bytes);
        std::filesystem::permissions(file, std::filesystem::perms(0755));
        return file;
    }

    static std::string read(const std::string& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

  private:
    std::filesystem::path m_path;
};
