// Nothing is closed to an administrator, so a test about what may not be read or written is an
// ordinary user for a while. Does nothing where it is one already. For tests on the main thread.
#pragma once

#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

namespace tests {

class AsOrdinaryUser {
  public:
    /// Until the end of the scope. `folder` and all that is in it belong to that user from now on,
    /// so that the owner's permissions are what counts, whoever runs the tests.
    explicit AsOrdinaryUser(const std::filesystem::path& folder) : m_was(::geteuid()) {
        if (m_was != 0)
            return;
        handOver(folder);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            handOver(entry.path());
        EXPECT_EQ(::seteuid(kNobody), 0);
    }
    ~AsOrdinaryUser() { EXPECT_EQ(::seteuid(m_was), 0); }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

  private:
    static constexpr uid_t kNobody = 65534;

    static void handOver(const std::filesystem::path& item) {
        EXPECT_EQ(::lchown(item.c_str(), kNobody, static_cast<gid_t>(-1)), 0) << item;
    }

    uid_t m_was;
};

} // namespace tests
