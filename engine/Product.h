// What this build installs: names, identifiers, version, places. Fixed at build time; the one place
// for each of these facts.
#pragma once

#include <string_view>

namespace ec::product {

inline constexpr std::string_view kDisplayName = "Scrivel 21";
inline constexpr std::string_view kBundleIdentifier = "com.BrackleyCorvaldine.Scrivel";
inline constexpr std::string_view kVersion = "21.0.0.19023";
/// Under the root of the run.
inline constexpr std::string_view kDestinationFolder = "/Applications/Scrivel 21";
/// Appended to the resource folder.
inline constexpr std::string_view kArchiveName = "/Scrivel.zip";
/// The archive's top folder.
inline constexpr std::string_view kArchiveTopFolder = "Scrivel";
/// Beside the application. Two separators in a row count as one.
inline constexpr std::string_view kContentBundle = "Product-Support//Content.bundle";
inline constexpr std::string_view kFolderIconName = "Scrivel_Folder.icns";

} // namespace ec::product
