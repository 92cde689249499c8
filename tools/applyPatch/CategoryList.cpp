#include "tools/applyPatch/CategoryList.h"

#include <ostream>

namespace tools {

namespace {

bool isOneField(const std::string& text) {
    return !text.empty() && text.find_first_of(",\n") == std::string::npos;
}

} // namespace

void listCategories(const patch::Manifest& manifest, const std::string& folder, std::ostream& out,
                    Complaints& complaints) {
    const std::string top = folder.substr(0, folder.find_last_not_of('/') + 1) + '/';
    for (const patch::CategoryItem& item : manifest.categoryItems) {
        const std::string path = top + item.path;
        if (isOneField(item.item) && isOneField(path))
            out << item.item << ',' << path << '\n';
        else
            complaints.about(path, "left out, as \"" + item.item +
                                       "\" or the path has a comma or a line end in it");
    }
}

} // namespace tools
