// The install methods by the names that the rules give them: which operation checks, and which one
// changes, a component of each method. Two tables of their own, each in its fixed order. Read by
// InstallDriver; the controller puts the operations in.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

#include "engine/LogText.h"
#include "engine/OpMode.h"
#include "engine/Status.h"

namespace ec {

/// `install…Mode:itemNum:source:dest:`. In a check it answers the state that it found.
using InstallOperation = std::function<MethodAnswer(OpMode, std::uint32_t itemNum,
                                                    OptionalText source, OptionalText dest)>;

struct InstallOperations {
    InstallOperation word;
    InstallOperation file;
    InstallOperation folder;
    InstallOperation services;
    InstallOperation spotlight;
    InstallOperation tessaron;
    InstallOperation uninstaller;
    InstallOperation category;
    InstallOperation allCategories;
};

struct InstallMethod {
    std::string_view name;
    InstallOperation InstallOperations::* operation;
    bool takesInstallFolder = false; ///< as its destination; the others are passed none
};

namespace method {
inline constexpr InstallMethod kWord{"inst_Word", &InstallOperations::word};
inline constexpr InstallMethod kFile{"inst_File", &InstallOperations::file, true};
inline constexpr InstallMethod kFolder{"inst_Dir", &InstallOperations::folder};
inline constexpr InstallMethod kServices{"inst_Services", &InstallOperations::services};
inline constexpr InstallMethod kSpotlight{"inst_Spotlight", &InstallOperations::spotlight};
inline constexpr InstallMethod kTessaron{"inst_Tessaron", &InstallOperations::tessaron};
inline constexpr InstallMethod kUninstaller{"inst_Uninst", &InstallOperations::uninstaller};
inline constexpr InstallMethod kCategory{"inst_Category", &InstallOperations::category};
inline constexpr InstallMethod kAllCategories{"inst_allCategories",
                                              &InstallOperations::allCategories};
} // namespace method

inline constexpr std::array kCheckMethods{
    method::kWord,        method::kFile,      method::kFolder,
    method::kServices,    method::kSpotlight, method::kTessaron,
    method::kUninstaller, method::kCategory,  method::kAllCategories,
};
/// Without the uninstaller: it is looked at, but never copied or removed by a change.
inline constexpr std::array kChangeMethods{
    method::kWord,      method::kFile,     method::kFolder,        method::kServices,
    method::kSpotlight, method::kTessaron, method::kAllCategories, method::kCategory,
};

} // namespace ec
