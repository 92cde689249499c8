// The file type that is stored with a file, in its Finder information.
#pragma once

#include <cstdint>
#include <string>

namespace Corvaldine::CP::Private {

/// `code` := the type, the first four bytes of the Finder information, big-endian; 0 means that
/// none was set. False when the path doesn't resolve or the file has no Finder information. It lies
/// in the extended attribute "com.apple.FinderInfo"; on Linux in "user.com.apple.FinderInfo".
[[nodiscard]] bool finder_file_type(const std::string& path, std::uint32_t& code);

} // namespace Corvaldine::CP::Private
