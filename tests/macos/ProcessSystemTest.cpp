#include "platform/posix/ProcessSystem.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <tuple>
#include <vector>

#include "tests/macos/FakeDarwin.h"

#undef fcntl
#undef posix_spawnattr_setflags

namespace {

using fakes::darwin;
using posix::Descriptor;
using posix::kProgressDescriptor;

bool isInherited(int descriptor) {
    return (::fcntl(descriptor, F_GETFD) & FD_CLOEXEC) == 0;
}

/// Closes a descriptor of the program for as long as it lives.
class Closed {
  public:
    explicit Closed(int descriptor)
        : m_descriptor(descriptor), m_kept(::fcntl(descriptor, F_DUPFD_CLOEXEC, 100)) {
        ::close(descriptor);
    }
    Closed(const Closed&) = delete;
    Closed& operator=(const Closed&) = delete;
    ~Closed() {
        if (m_kept.isOpen())
            ::dup2(m_kept.number(), m_descriptor);
        else
            ::close(m_descriptor);
    }

  private:
    int m_descriptor;
    Descriptor m_kept;
};

class ProcessSystemOfMacOs : public testing::Test {
  protected:
    ProcessSystemOfMacOs() { darwin() = {}; }
};

TEST_F(ProcessSystemOfMacOs, AToolInheritsNoPipeAndFindsNoneWhereItsOwnAreToBe) {
    // The pipe is given two of these numbers, and none of them is what it keeps.
    const Closed input(STDIN_FILENO);
    const Closed error(STDERR_FILENO);
    const Closed three(kProgressDescriptor);
    {
        const posix::Pipe pipe = posix::makePipe();
        ASSERT_TRUE(pipe.isOpen());
        for (const Descriptor* end : {&pipe.reading, &pipe.writing}) {
            EXPECT_GT(end->number(), kProgressDescriptor);
            EXPECT_FALSE(isInherited(end->number()));
        }
        EXPECT_EQ(::write(pipe.writing.number(), "x", 1), 1);
        char byte = 0;
        EXPECT_EQ(::read(pipe.reading.number(), &byte, 1), 1);
        EXPECT_EQ(byte, 'x');
    }
    for (const int below : {STDIN_FILENO, STDERR_FILENO, kProgressDescriptor})
        EXPECT_EQ(::fcntl(below, F_GETFD), -1) << below << " is left open";
}

TEST_F(ProcessSystemOfMacOs, WithoutDescriptorsThereIsNoPipe) {
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const bool isOpen = posix::makePipe().isOpen();
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_FALSE(isOpen);
}

TEST_F(ProcessSystemOfMacOs, TheEndOfOneChildIsWatchedFor) {
    std::vector<std::tuple<std::uintptr_t, int, int, unsigned>> watched;
    darwin().kevent = [&](int, const struct kevent& change) {
        watched.emplace_back(change.ident, change.filter, change.flags, change.fflags);
        return 0;
    };
    const Closed three(kProgressDescriptor);
    const Descriptor queue = posix::watchEnd(4711);
    ASSERT_TRUE(queue.isOpen());
    EXPECT_GT(queue.number(), kProgressDescriptor);
    EXPECT_FALSE(isInherited(queue.number()));
    EXPECT_EQ(watched,
              (std::vector{std::tuple{std::uintptr_t{4711}, -5, 1, 0x80000000u}})); // exits alone
}

TEST_F(ProcessSystemOfMacOs, OfAChildThatIsOverAlreadyNoEndIsWatchedFor) {
    darwin().kevent = [](int, const struct kevent&) {
        errno = ESRCH;
        return -1;
    };
    EXPECT_FALSE(posix::watchEnd(4711).isOpen());
}

TEST_F(ProcessSystemOfMacOs, WithoutAQueueNoEndIsWatchedFor) {
    darwin().refusesQueue = true;
    bool asked = false;
    darwin().kevent = [&](int, const struct kevent&) {
        asked = true;
        return 0;
    };
    EXPECT_FALSE(posix::watchEnd(4711).isOpen());
    EXPECT_FALSE(asked);
}

class SpawningOfMacOs : public ProcessSystemOfMacOs {
  protected:
    SpawningOfMacOs() {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawnattr_init(&m_attributes);
    }
    ~SpawningOfMacOs() override {
        ::posix_spawnattr_destroy(&m_attributes);
        ::posix_spawn_file_actions_destroy(&m_actions);
    }
    std::vector<int> inheritedFrom(int first) {
        darwin().inherited.clear();
        posix::closeFrom(m_actions, m_attributes, first);
        return darwin().inherited;
    }

    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

TEST_F(SpawningOfMacOs, AToolKeepsItsOutputAndItsErrorsAndNothingElseOfTheProgram) {
    ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    EXPECT_EQ(inheritedFrom(kProgressDescriptor), (std::vector{1, 2}));
    EXPECT_EQ(darwin().spawnFlags, 0x4000 | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    EXPECT_EQ(inheritedFrom(kProgressDescriptor + 1), (std::vector{1, 2}));
    EXPECT_EQ(inheritedFrom(2), std::vector{1});
}

TEST_F(SpawningOfMacOs, WhatIsClosedInTheProgramIsNotAskedFor) {
    std::vector<int> inherited;
    {
        const Closed error(STDERR_FILENO);
        inherited = inheritedFrom(kProgressDescriptor);
    }
    EXPECT_EQ(inherited, std::vector{1});
}

} // namespace
