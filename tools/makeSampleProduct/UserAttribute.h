// One extended attribute of the user's name space. One source file a system.
#pragma once

#include <filesystem>
#include <string>

namespace tools {

/// Gives the item the attribute. A file system without attributes leaves it as it is.
void setUserAttribute(const std::filesystem::path& path, const std::string& name,
                      const std::string& value);

} // namespace tools
