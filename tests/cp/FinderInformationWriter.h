// Gives a file the Finder information that the library reads.
#pragma once

#include <string>

/// False, with errno, where the file system can't hold it.
[[nodiscard]] bool writeFinderInformation(const std::string& path, const std::string& record);
