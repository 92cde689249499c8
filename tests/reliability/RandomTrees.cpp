#include "tests/reliability/RandomTrees.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <random>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <sys/xattr.h>

namespace tests {

namespace {

namespace fs = std::filesystem;

// With what has made trouble for programs that handle names: blanks, line ends, bytes that are no
// UTF-8, names that look like options or hidden files.
constexpr std::array<std::string_view, 14> kNames{
    "Contents", "MacOS",   "a b", "-rf",       ".hidden", "\xC3\xA4rger", "line\nend",
    "\xFF\xFE", "x.plist", "...", "b,c=d;'\"", "README",  "lib.so.1",     "\xE6\x96\x87"};
constexpr std::array<unsigned, 7> kFileModes{0644, 0755, 0600, 0444, 0640, 04755, 0664};
constexpr std::array<unsigned, 4> kFolderModes{0755, 0700, 0775, 01755};

class Maker {
  public:
    explicit Maker(std::uint64_t seed) : m_random(seed) {}

    Items tree(std::size_t size) {
        Items items;
        while (items.size() < size)
            add(items, path(items));
        return items;
    }

    Items next(const Items& before) {
        Items after = before;
        std::vector<std::string> paths;
        for (const auto& [path, item] : before)
            paths.push_back(path);
        for (const std::string& path : paths)
            if (after.contains(path) && below(3) == 0)
                change(after, path);
        const std::size_t more = 1 + below(1 + before.size() / 5);
        for (std::size_t i = 0; i < more; ++i)
            add(after, path(after));
        return after;
    }

    /// Adds what a user may have: new items where no version has anything to say, and an attribute.
    void addTheUsers(Versions& versions) {
        versions.installed = versions.before;
        versions.updated = versions.after;
        const std::size_t count = below(4);
        for (std::size_t i = 0; i < count; ++i) {
            const std::string folder = this->folder(versions.before);
            const std::string name = "mine " + std::to_string(i);
            if (!canStay(versions, folder))
                continue;
            for (std::string up = folder; !up.empty(); up = parent(up))
                versions.updated.try_emplace(up, versions.before.at(up));
            const std::string at = folder.empty() ? name : folder + "/" + name;
            versions.installed[at] = versions.updated[at] = item();
        }
        for (const auto& [path, item] : versions.before) {
            const auto after = versions.after.find(path);
            if (item.kind == Item::Kind::file && after != versions.after.end() &&
                after->second == item && below(6) == 0) {
                versions.installed[path].attributes["user.mine"] = "kept";
                versions.updated[path].attributes["user.mine"] = "kept";
            }
        }
    }

  private:
    std::size_t below(std::size_t bound) { return m_random() % bound; }
    template <typename List>
    auto oneOf(const List& list) {
        return list[below(list.size())];
    }

    static std::string parent(const std::string& path) {
        const auto slash = path.rfind('/');
        return slash == std::string::npos ? std::string() : path.substr(0, slash);
    }

    /// Whether the folder, and those above it, can outlast the update.
    static bool canStay(const Versions& versions, const std::string& folder) {
        for (std::string up = folder; !up.empty(); up = parent(up)) {
            const auto after = versions.after.find(up);
            if (after != versions.after.end() && after->second.kind != Item::Kind::folder)
                return false;
        }
        return true;
    }

    /// A folder of the tree, or "" for its top.
    std::string folder(const Items& items) {
        std::vector<std::string> folders{""};
        for (const auto& [path, item] : items)
            if (item.kind == Item::Kind::folder)
                folders.push_back(path);
        return oneOf(folders);
    }

    std::string path(const Items& items) {
        const std::string above = folder(items);
        std::string name(oneOf(kNames));
        while (items.contains(above.empty() ? name : above + "/" + name))
            name += std::to_string(below(10));
        return above.empty() ? name : above + "/" + name;
    }

    std::string bytes() {
        static constexpr std::array<std::size_t, 6> kSizes{0, 1, 100, 3000, 5000, 20000};
        constexpr std::size_t kRareSize = 150'000;
        std::string text(below(40) == 0 ? kRareSize : oneOf(kSizes), ' ');
        const bool isText = below(2) == 0;
        for (char& byte : text)
            byte = isText ? "etaoin shrdlu\n"[below(14)] : static_cast<char>(m_random());
        return text;
    }

    Item item() {
        static constexpr std::array<std::string_view, 5> kTargets{"../../outside", "Contents",
                                                                  "nowhere", "/dev/null", "."};
        const std::size_t kind = below(8);
        if (kind == 0)
            return {.kind = Item::Kind::link, .text = std::string(oneOf(kTargets))};
        Item item;
        item.kind = kind < 3 ? Item::Kind::folder : Item::Kind::file;
        item.mode = item.kind == Item::Kind::file ? oneOf(kFileModes) : oneOf(kFolderModes);
        if (item.kind == Item::Kind::file)
            item.text = bytes();
        if (below(4) == 0)
            item.attributes["user.color"] = bytes().substr(0, 60);
        return item;
    }

    void add(Items& items, const std::string& path) { items[path] = item(); }

    static void remove(Items& items, const std::string& path) {
        std::erase_if(items, [&](const auto& entry) {
            return entry.first == path || entry.first.starts_with(path + "/");
        });
    }

    void edit(std::string& text) {
        const std::size_t at = below(text.size() + 1);
        const std::size_t length = std::min<std::size_t>(below(200), text.size() - at);
        const std::string piece = bytes().substr(0, below(300) + 1);
        text.replace(at, below(2) == 0 ? length : 0, piece);
    }

    void rename(Items& items, const std::string& from) {
        Items moved;
        for (const auto& [path, item] : items)
            if (path == from || path.starts_with(from + "/"))
                moved[path.substr(from.size())] = item;
        remove(items, from);
        const std::string to = path(items);
        for (auto& [rest, item] : moved)
            items[to + rest] = std::move(item);
    }

    void change(Items& items, const std::string& path) {
        Item& item = items.at(path);
        switch (below(7)) {
        case 0:
            remove(items, path);
            break;
        case 1:
            rename(items, path);
            break;
        case 2: // another kind, or another one altogether
            remove(items, path);
            add(items, path);
            break;
        case 3:
            if (item.kind != Item::Kind::link)
                item.mode = item.kind == Item::Kind::file ? oneOf(kFileModes) : oneOf(kFolderModes);
            break;
        case 4:
            if (item.kind != Item::Kind::link && item.attributes.erase("user.color") == 0)
                item.attributes["user.color"] = "new";
            break;
        default:
            if (item.kind == Item::Kind::file)
                edit(item.text);
            else if (item.kind == Item::Kind::link)
                item.text += "/on";
        }
    }

    std::mt19937_64 m_random;
};

void checked(int answer, const fs::path& file) {
    if (answer != 0)
        throw fs::filesystem_error("can't make it", file,
                                   std::error_code(errno, std::generic_category()));
}

void finish(const Item& item, const fs::path& file) {
    for (const auto& [name, value] : item.attributes)
        if (::setxattr(file.c_str(), name.c_str(), value.data(), value.size(), 0) != 0 &&
            errno != EOPNOTSUPP)
            checked(-1, file);
    checked(::chmod(file.c_str(), item.mode), file);
}

} // namespace

Versions randomVersions(std::uint64_t seed, std::size_t size) {
    Maker maker(seed);
    Versions versions;
    versions.before = maker.tree(size);
    versions.after = maker.next(versions.before);
    maker.addTheUsers(versions);
    return versions;
}

void build(const Items& items, const fs::path& folder) {
    fs::create_directories(folder);
    for (const auto& [path, item] : items) {
        const fs::path at = folder / path;
        if (item.kind == Item::Kind::folder)
            fs::create_directory(at);
        else if (item.kind == Item::Kind::link)
            fs::create_symlink(item.text, at);
        else {
            std::ofstream stream(at, std::ios::binary);
            stream << item.text;
            if (!stream.flush())
                checked(-1, at);
        }
    }
    // From the bottom up, as a folder that is closed lets nothing in.
    for (auto entry = items.rbegin(); entry != items.rend(); ++entry)
        if (entry->second.kind != Item::Kind::link)
            finish(entry->second, folder / entry->first);
}

} // namespace tests
