#include "tests/tools/PatchesInTests.h"

#include <algorithm>
#include <sstream>

#include <fcntl.h>
#include <sys/xattr.h>

namespace tools::testing {

namespace fs = std::filesystem;

PatchTest::PatchTest() {
    write("before/same", "stays as it is");
    write("before/changed", std::string(5000, 'o') + "old");
    write("before/gone", "will go");
    write("before/moved", std::string(4000, 'm'));
    write("before/sub/inner", "inner, old");
    write("before/sub/kept", "inner, kept");
    fs::create_symlink("same", at("before/link"));
    fs::create_directory(at("before/empty"));
    fs::copy(at("before"), at("after"),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    write("after/changed", std::string(5000, 'o') + "new");
    fs::remove(at("after/gone"));
    fs::rename(at("after/moved"), at("after/sub/moved to here"));
    write("after/sub/inner", "inner, new");
    fs::remove(at("after/link"));
    fs::create_symlink("changed", at("after/link"));
    write("after/new/folder/file", "brought along");
    fs::create_directory(at("after/new empty"));
}

tests::UnsignedPatch PatchTest::between() const {
    return tests::patchBetween(at("before"), at("after"));
}

void PatchTest::writePatch(const tests::UnsignedPatch& patch) const {
    tests::writePatch(patch, at("patch"), tests::testSeed(PATCH_TEST_KEY));
}

void PatchTest::makePatch() const {
    writePatch(between());
}

void PatchTest::makeCopy(const std::string& name) const {
    ASSERT_EQ(run({"cp", "-a", "before", name}).status, 0);
}

std::vector<std::string> PatchTest::command(const std::vector<std::string>& more) const {
    std::vector<std::string> all{APPLY_PATCH, "-d", at("copy"), "-i", at("patch")};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

Outcome PatchTest::applyRefusing(const std::string& call, const std::string& answer) const {
    std::vector<std::string> all{REFUSE_CALL, call, answer};
    for (const std::string& argument : command())
        all.push_back(argument);
    return run(all);
}

Outcome PatchTest::applyAsOrdinaryUser(const std::vector<std::string>& more) const {
    return runAsOrdinaryUser(command(more));
}

std::vector<std::string> PatchTest::leftovers() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(at("")))
        if (entry.path().filename().string().starts_with(".scrivel"))
            names.push_back(entry.path().filename().string());
    return names;
}

std::vector<std::string> PatchTest::contents(const std::string& folder) const {
    std::vector<std::string> lines;
    for (const auto& entry : fs::recursive_directory_iterator(at(folder))) {
        std::string line = entry.path().lexically_relative(at(folder)).string();
        const auto type = entry.symlink_status().type();
        if (type == fs::file_type::symlink)
            line += " -> " + fs::read_symlink(entry.path()).string();
        else if (type == fs::file_type::regular)
            line += ": " + contentsOf(entry.path());
        else
            line += "/";
        lines.push_back(std::move(line));
    }
    std::ranges::sort(lines);
    return lines;
}

std::vector<std::string> PatchTest::everything(const std::string& folder) const {
    std::vector<std::string> lines = listing(at(folder));
    for (const auto& entry : fs::recursive_directory_iterator(at(folder))) {
        const std::string path = entry.path().lexically_relative(at("")).string();
        const struct stat status = statusOf(path);
        std::ostringstream line;
        line << path << ' ' << status.st_ino << ' ' << status.st_ctim.tv_sec << '.'
             << status.st_ctim.tv_nsec << ' ' << status.st_uid << ' ' << status.st_nlink;
        lines.push_back(line.str());
    }
    std::ranges::sort(lines);
    return lines;
}

struct stat PatchTest::statusOf(const std::string& path) const {
    struct stat status{};
    EXPECT_EQ(::lstat(at(path).c_str(), &status), 0) << path;
    return status;
}

void PatchTest::setAttribute(const std::string& path, const std::string& name,
                             const std::string& value) const {
    ASSERT_EQ(::setxattr(at(path).c_str(), name.c_str(), value.data(), value.size(), 0), 0) << path;
}

std::string PatchTest::attribute(const std::string& path, const std::string& name) const {
    char value[256];
    const ssize_t length = ::getxattr(at(path).c_str(), name.c_str(), value, sizeof value);
    return length < 0 ? "none" : std::string(value, static_cast<std::size_t>(length));
}

void PatchTest::setTime(const std::string& path, long seconds) const {
    const timespec times[2] = {{seconds, 0}, {seconds, 123456789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, at(path).c_str(), times, AT_SYMLINK_NOFOLLOW), 0) << path;
}

void PatchTest::setMode(const std::string& path, unsigned mode) const {
    ASSERT_EQ(::chmod(at(path).c_str(), mode), 0) << path;
}

std::string PatchTest::building(const std::string& copy) const {
    const patch::Digest digest = patch::digestOf(std::as_bytes(std::span(copy)));
    return ".scrivel-update-" + patch::hexadecimal(patch::View(digest).first(8));
}

} // namespace tools::testing
