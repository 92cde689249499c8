// The product's content files, grouped in category folders: copied from the content bundle beside
// the application into folders beside it, and removed from there. Called by the driver.
//
// A rule's first file is its category path, "COLLECTION/CATEGORY" or "COLLECTION", relative both to
// the content bundle and to the folder that holds the application. A rule without one raises; that
// is caught, logged, and answers 0. Main thread.
#pragma once

#include <cstdint>
#include <string>

#include "engine/ComponentParts.h"
#include "engine/FileOperations.h"
#include "engine/FolderComparison.h"
#include "engine/OpMode.h"
#include "platform/ports/Bundles.h"
#include "rules/ecRules.h"
#include "wizard/InstallLog.h"

namespace ec {

class CategoryModes {
  public:
    struct Needs {
        InstallLog& log;
        FileOperations& files;
        FolderComparison& folders;
        const ports::Bundles& bundles;
        const ecRules& rules;
    };
    explicit CategoryModes(Needs needs) : m_needs(needs) {}
    CategoryModes(const CategoryModes&) = delete;
    CategoryModes& operator=(const CategoryModes&) = delete;

    /// `installCategoryMode:itemNum:source:dest:`, one category. Check: 1 when every name of it is
    /// there, else 0. Copy: the status of the copy unchanged, so 0 is success: its verdict is
    /// inverted, on purpose. Remove: 1 when all could be removed, else 0.
    MethodAnswer installCategoryMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                     OptionalText dest);

    /// `installAllCategoriesMode:itemNum:source:dest:`, a collection of categories. Check: 1 when
    /// all are there, 0 when none is, -2 when some are. Copy: 1 when all were copied. Remove: goes
    /// back to the most popular ones; 1 when that went well, else 0.
    MethodAnswer installAllCategoriesMode(OpMode mode, std::uint32_t itemNum, OptionalText source,
                                          OptionalText dest);

    /// What of the item lies where. Removing all leaves the most popular, so they are no traces.
    ComponentParts categoryParts(std::uint32_t itemNum) const;
    ComponentParts allCategoriesParts(std::uint32_t itemNum) const;

  private:
    /// The folders that a category path stands for.
    struct Places {
        std::string source;
        std::string destination; ///< of a collection
        std::string holder;      ///< of one category: its collection
        std::string mostPopular;
    };
    Places placesOf(std::uint32_t itemNum) const;
    MethodAnswer checkAll(const Places& places) const;
    MethodAnswer copyAll(const Places& places);
    MethodAnswer removeAll(const Places& places);

    Needs m_needs;
};

} // namespace ec
