// What an install method is asked to do. The value comes from tables and callers as a number, so
// any other number stays legal and prints as "mode_invalid".
#pragma once

namespace ec {

enum class OpMode : int {
    check = 1,  ///< look what is installed
    copy = 2,   ///< install
    remove = 3, ///< remove
};

} // namespace ec
