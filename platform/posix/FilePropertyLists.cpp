#include "platform/posix/FilePropertyLists.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <span>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/posix/Plist.h"
#include "platform/posix/PlistGuard.h"
#include "platform/posix/RegularFile.h"
#include "platform/posix/StagedFile.h"

namespace posix {

namespace {

using Outcome = ports::ReadDictionary::Outcome;

constexpr mode_t kForOwnerAlone = 0600;
constexpr int kMostLinks = 40; // as the system follows at most
constexpr int kMostNames = 10'000;

class Dictionary final : public ports::PropertyDictionary {
  public:
    explicit Dictionary(Plist list) : m_list(std::move(list)) {}

    std::optional<std::string> string(std::string_view key) const override {
        return m_list.string(key);
    }
    std::optional<std::vector<std::string>> strings(std::string_view key) const override {
        return m_list.array(key);
    }
    void setString(std::string_view key, std::string_view value) override {
        m_list.setString(key, value);
    }
    void setStrings(std::string_view key, const std::vector<std::string>& values) override {
        m_list.setArray(key, values);
    }
    void addEntriesFrom(const PropertyDictionary& other) override {
        m_list.addEntriesFrom(static_cast<const Dictionary&>(other).m_list);
    }
    const Plist& list() const { return m_list; }

  private:
    Plist m_list;
};

/// Where the links at `path` lead in the end, whether or not something is there.
std::string targetOf(const std::string& path) {
    namespace fs = std::filesystem;
    fs::path target = path;
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i) {
        const fs::path link = fs::read_symlink(target, error);
        if (error)
            break;
        target = target.parent_path() / link; // an absolute one replaces all before it
    }
    return target.string();
}

enum class Kind { none, file, other };

Kind kindOf(const std::string& path) {
    struct stat facts{};
    if (::lstat(path.c_str(), &facts) != 0)
        return errno == ENOENT ? Kind::none : Kind::other;
    return S_ISREG(facts.st_mode) ? Kind::file : Kind::other;
}

/// Renames `path` to `name` unless that is taken. 0 or an errno value.
int renameToFree(const std::string& path, const std::string& name) {
    if (::link(path.c_str(), name.c_str()) == 0) {
        if (::unlink(path.c_str()) == 0)
            return 0;
        const int error = errno;
        ::unlink(name.c_str());
        return error;
    }
    const int error = errno;
    if (error == EEXIST || kindOf(name) != Kind::none)
        return EEXIST;
    // A file system without hard links, or a file that this user may not link to.
    return ::rename(path.c_str(), name.c_str()) == 0 ? 0 : errno;
}

} // namespace

std::unique_ptr<ports::PropertyDictionary> FilePropertyLists::emptyDictionary() {
    return std::make_unique<Dictionary>(Plist::emptyDictionary());
}

ports::ReadDictionary FilePropertyLists::readFile(const std::string& path) {
    const FileBytes file = readRegularFile(path, PlistLimits::kBytes);
    if (file.error == ENOENT || file.error == ENOTDIR)
        return {.outcome = Outcome::missing, .dictionary = nullptr};
    auto list = file.error == 0 ? Plist::read(file.bytes) : std::nullopt;
    if (!list || !list->isDictionary())
        return {.outcome = Outcome::broken, .dictionary = nullptr};
    return {.outcome = Outcome::read, .dictionary = std::make_unique<Dictionary>(std::move(*list))};
}

bool FilePropertyLists::writeFile(const ports::PropertyDictionary& dictionary,
                                  const std::string& path) {
    const std::string target = targetOf(path);
    const auto xml = static_cast<const Dictionary&>(dictionary).list().xml();
    if (!xml || kindOf(target) == Kind::other)
        return false;
    StagedFile file(target, kForOwnerAlone);
    return file.write(std::as_bytes(std::span(*xml))) == 0 && file.replace() == 0;
}

std::optional<std::string> FilePropertyLists::setAside(const std::string& path) {
    const std::string target = targetOf(path);
    if (kindOf(target) != Kind::file)
        return std::nullopt;
    for (int number = 1; number <= kMostNames; ++number) {
        std::string name = target + ".damaged" + (number == 1 ? "" : "-" + std::to_string(number));
        const int error = renameToFree(target, name);
        if (error == 0)
            return name;
        if (error != EEXIST)
            break;
    }
    return std::nullopt;
}

} // namespace posix
