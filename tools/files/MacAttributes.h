// What an AppleDouble file says about another file, kept by this system's means: extended
// attributes where the file system takes them, else an AppleDouble file "._name" beside it. Used
// by ditto and makeArchive.
#pragma once

#include <string>

#include "platform/formats/AppleDouble.h"

namespace tools {

/// Sets attributes and Finder information on the open file. Answers what could not be kept there
/// and belongs into the file beside: the resource fork always, everything when the file system
/// refuses attributes. The mark of quarantine is dropped.
formats::AppleDouble applyMacAttributes(int file, formats::AppleDouble attributes);

/// What the open file has, without what may be kept beside it. The mark of quarantine is left out.
formats::AppleDouble readMacAttributes(int file);

/// Whether there is anything to keep.
bool isEmpty(const formats::AppleDouble& attributes);

/// "._name", where what a file's own attributes can't hold is kept.
std::string sidecarName(std::string_view name);

} // namespace tools
