// What the file system knows about a path, in the words of the catalogue that the library was
// written for. Links are followed. Paths are UTF-8. Status codes: 0 is success.
#pragma once

#include <cstdint>
#include <string>

#include "cp/FSRef.h"

namespace Corvaldine::CP::Private {

using Status = std::int32_t;

inline constexpr Status kNoError = 0;
inline constexpr Status kFileNotFound = -43;
inline constexpr Status kNameTooLong = -37;
inline constexpr Status kAccessDenied = -5000;
inline constexpr Status kInputOutputError = -36;
/// The converter's own: it has neither a path nor a reference; the path can't be written in UTF-8.
inline constexpr Status kNothingToConvert = -620;
inline constexpr Status kTextNotConvertible = -8764;

/// Bits of the node flags.
inline constexpr std::uint16_t kNodeIsLocked = 1u << 0;
inline constexpr std::uint16_t kNodeIsDirectory = 1u << 4;

/// Mask of the nine rwx bits of a permission mode.
inline constexpr std::uint32_t kPermissionBits = 0x1FF;

struct CatalogueInfo {
    std::uint16_t nodeFlags = 0; ///< without the locked bit, which only NodeLock.h reads
    std::uint32_t mode = 0;      ///< permission bits and set-id bits
    std::int64_t dataSize = 0;   ///< bytes; of a regular file
    bool isRegularFile = false;
};

/// False when the path doesn't resolve.
[[nodiscard]] bool catalogue_info(const std::string& path, CatalogueInfo& info);

/// `ref` := what the path leads to; answers 0 or why not.
[[nodiscard]] Status path_make_ref(const std::string& path, FSRef& ref);
/// `path` := where the reference lies; fails when something else lies there by now.
[[nodiscard]] Status ref_make_path(const FSRef& ref, std::string& path);
/// `spec` := the folder of the reference and its name in there.
[[nodiscard]] Status ref_make_spec(const FSRef& ref, FSSpec& spec);
/// 0 when an entry of that name, a link that leads nowhere included, is in the folder.
[[nodiscard]] Status find_in_folder(const FSRef& folder, const std::string& name);

} // namespace Corvaldine::CP::Private
