// A folder of a test's own, gone with everything in it when the test is over.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/formats/AppleDouble.h"

namespace formats::testing {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "scrivel-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_path = std::filesystem::canonical(name);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const { return (m_path / name).string(); }
    std::string path() const { return m_path.string(); }

    /// The names in the folder or in a folder in it, sorted.
    std::vector<std::string> names(const std::string& folder = {}) const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(m_path / folder))
            all.push_back(entry.path().filename().string());
        std::ranges::sort(all);
        return all;
    }

  private:
    std::filesystem::path m_path;
};

inline void writeFile(const std::string& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

inline Bytes readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Bytes bytes;
    std::transform(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>(),
                   std::back_inserter(bytes), [](char c) { return static_cast<std::byte>(c); });
    return bytes;
}

} // namespace formats::testing
