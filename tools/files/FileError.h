// What the system refused, and for which file. Thrown where a whole tree is worked on and the
// reader of the message must learn which of its files it was about.
#pragma once

#include <string>
#include <system_error>

namespace tools {

class FileError : public std::system_error {
  public:
    FileError(std::string path, int error)
        : std::system_error(error, std::generic_category(), path), m_path(std::move(path)) {}

    /// From the top of the tree on, or as the user gave it.
    const std::string& path() const { return m_path; }

  private:
    std::string m_path;
};

/// Does `work` and names the file in what it throws.
template <typename Work>
auto naming(const std::string& path, Work work) {
    try {
        return work();
    } catch (const FileError&) {
        throw;
    } catch (const std::system_error& error) {
        throw FileError(path, error.code().value());
    }
}

} // namespace tools
