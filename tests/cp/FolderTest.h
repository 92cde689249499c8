// A test with a folder of its own, whose entries it names as the library's paths.
#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "cp/CPath.h"
#include "tests/support/TemporaryFolder.h"

class FolderTest : public ::testing::Test {
  protected:
    std::filesystem::path at(const std::string& name) const { return folder.path(name); }

    Corvaldine::CP::CPath path(const std::string& name) const {
        return Corvaldine::CP::CPath(folder.path(name));
    }

    Corvaldine::CP::CPath top() const { return Corvaldine::CP::CPath(folder.path()); }

    void write(const std::string& name, const std::string& text) const { folder.write(name, text); }

    std::string read(const std::string& name) const { return folder.read(name); }

    const tests::TemporaryFolder folder;
};
