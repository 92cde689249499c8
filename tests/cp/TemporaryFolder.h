// A folder of its own for each test, gone with everything in it when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "cp/CPath.h"
#include "cp/private/TreeWalk.h"

class TemporaryFolder : public ::testing::Test {
  protected:
    TemporaryFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "scrivel-cp-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        folder = std::filesystem::canonical(pattern);
    }

    // Trees may be deeper than std::filesystem can go.
    ~TemporaryFolder() override { Corvaldine::CP::Private::discard_tree(folder.string()); }

    std::filesystem::path at(const std::string& name) const { return folder / name; }

    Corvaldine::CP::CPath path(const std::string& name) const {
        return Corvaldine::CP::CPath(at(name).string());
    }

    Corvaldine::CP::CPath top() const { return Corvaldine::CP::CPath(folder.string()); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream file(at(name), std::ios::binary);
        file << text;
        ASSERT_TRUE(file.flush().good()) << name;
    }

    std::string read(const std::string& name) const {
        std::ifstream file(at(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    std::filesystem::path folder;
};
