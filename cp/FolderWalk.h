// Finds items by their names in a folder and all that is below it, as a search for applications
// goes: "X.app" and "X.bundle" are items like any other but never looked into, and links are not
// followed. Used by the wizard to find applications by name and by the registry of bundles on
// systems that keep none. Looks only.
//
// Descriptors lead from folder to folder, nothing recurses, and no item is asked for its kind where
// the folder tells it. A walk over the same folder again and again may remember what stands in the
// folders: it then asks each of them once whether it has changed, and reads only those that have.
// Not for several threads at a time.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Corvaldine::CP {

class FolderWalk {
  public:
    /// Is an item of this name looked for? Asked once for each item of a folder that is read, of
    /// every kind; must answer the same whenever it is asked.
    using Wanted = std::function<bool(std::string_view name)>;
    enum class Memory { none, folders };

    explicit FolderWalk(Wanted wanted, Memory memory = Memory::none);
    FolderWalk(FolderWalk&&) noexcept;
    FolderWalk& operator=(FolderWalk&&) noexcept;
    ~FolderWalk();

    /// The paths of the wanted items below `folder`, each beginning with `folder` as it is spelled:
    /// a folder's items in the order of their names' bytes, each before what is below it. `folder`
    /// itself may be a link. A folder that can't be read, or has gone before the walk comes to it,
    /// is passed over, and of one that can't be read to its end the rest. Only the last folder that
    /// was walked is remembered.
    [[nodiscard]] std::vector<std::string> find(const std::string& folder);

  private:
    struct Remembered;
    class Walk;

    Wanted m_wanted;
    std::unique_ptr<Remembered> m_remembered;
};

} // namespace Corvaldine::CP
