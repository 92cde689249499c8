// Looks whether the product really stands at its destination, member by member, as the archive has
// it. The flow itself examines no tool's status; the process's exit status is taken from here.
// Reads only; changes nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace app {

/// None when every member below `topFolder` of the archive is at its place below `destination`, of
/// the same kind and, for a file, of the same size; else what is wrong, in words for the user.
std::optional<std::string> faultOfInstalledProduct(const std::string& archive,
                                                   std::string_view topFolder,
                                                   const std::string& destination);

} // namespace app
