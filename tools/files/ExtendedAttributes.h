// Extended attributes of open files, each system's way; all but setAttribute is implemented once
// for each system by the file of the same name in its folder. Any thread.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/formats/AppleDouble.h"

namespace tools {

/// Names as the system has them; empty also where the file system knows none, and where this user
/// may not see them. Throws std::system_error when they can't be read for another reason: what is
/// there must not pass for missing.
std::vector<std::string> attributeNames(int file);

/// None when it is gone or not for this user to see. Throws std::system_error as above.
std::optional<formats::Bytes> attributeValue(int file, const std::string& name);

/// 0 or an error number. The owner may set it of a write-protected file, too.
int setAttribute(int file, const std::string& name, std::span<const std::byte> value);

/// The system's own call for it, for setAttribute alone.
int putAttribute(int file, const std::string& name, std::span<const std::byte> value);

void removeAttribute(int file, const std::string& name);

/// The system's name for the attribute that macOS calls `name`: "user.NAME" on Linux, where a
/// file's owner may set no other.
std::string systemAttributeName(std::string_view name);

/// The other way round; none for an attribute that macOS has no equal of.
std::optional<std::string> macAttributeName(std::string_view systemName);

/// Whether a copy of a file keeps the attribute: what users set and access lists, not the labels of
/// security modules.
bool isCopiedAttribute(std::string_view systemName);

/// Whether the attribute is part of the file's permissions: an access list, which the file system
/// may refuse and which must come after the mode.
bool isAccessList(std::string_view systemName);

} // namespace tools
