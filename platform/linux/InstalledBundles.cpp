#include "platform/linux/InstalledBundles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace linuxhost {

namespace fs = std::filesystem;

std::vector<std::string> installedBundles(const std::string& folder) {
    std::vector<std::string> bundles;
    std::vector<fs::path> pending{folder};
    while (!pending.empty()) {
        const fs::path current = std::move(pending.back());
        pending.pop_back();
        std::error_code error;
        for (fs::directory_iterator at(current, error), end; !error && at != end;
             at.increment(error)) {
            // The folder tells the kind of its entries; only a link costs a look at its target.
            std::error_code gone;
            const fs::path extension = at->path().extension();
            if (extension == ".app") {
                if (at->is_directory(gone))
                    bundles.push_back(at->path().native());
            } else if (extension != ".bundle" && !at->is_symlink(gone) && at->is_directory(gone)) {
                pending.push_back(at->path());
            }
        }
    }
    std::ranges::sort(bundles);
    return bundles;
}

} // namespace linuxhost
