#include "platform/posix/FileTextStreams.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <vector>

#include "platform/posix/ProcessSystem.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using posix::FileTextStreams;

TEST(FileTextStreams, AppendingMakesTheFileWithTheUsersUsualRights) {
    const tests::TemporaryFolder folder;
    const mode_t before = ::umask(022);
    EXPECT_TRUE(FileTextStreams().append(folder.path("log"), "one\n"));
    ::umask(before);
    EXPECT_EQ(folder.read("log"), "one\n");
    EXPECT_EQ(std::filesystem::status(folder.path("log")).permissions(),
              std::filesystem::perms(0644));
}

TEST(FileTextStreams, AppendingNeverDisturbsWhatStandsThere) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("log", "before\n");
    FileTextStreams streams;
    EXPECT_TRUE(streams.append(file, "one\n"));
    EXPECT_TRUE(streams.append(file, ""));
    EXPECT_TRUE(streams.append(file, std::string("t\0o\n", 4)));
    EXPECT_EQ(tests::contentsOf(file), std::string("before\none\nt\0o\n", 15));
}

TEST(FileTextStreams, AFolderInThePlaceOfTheFileIsRefused) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(FileTextStreams().append(folder.path(), "one\n"));
    EXPECT_FALSE(FileTextStreams().append(folder.path("no/log"), "one\n"));
    EXPECT_FALSE(std::filesystem::exists(folder.path("no")));
}

TEST(FileTextStreams, AFullDiskIsRefused) {
    EXPECT_FALSE(FileTextStreams().append("/dev/full", "one\n"));
}

TEST(FileTextStreams, LinesFromManyThreadsStayWhole) {
    const tests::TemporaryFolder folder;
    constexpr int kLines = 200;
    std::vector<std::thread> threads;
    for (char letter : {'a', 'b', 'c', 'd'})
        threads.emplace_back([&folder, letter] {
            FileTextStreams streams;
            for (int i = 0; i < kLines; ++i)
                streams.append(folder.path("log"), std::string(100, letter) + "\n");
        });
    for (std::thread& thread : threads)
        thread.join();
    std::ifstream log(folder.path("log"));
    int lines = 0;
    for (std::string line; std::getline(log, line); ++lines)
        EXPECT_EQ(line, std::string(100, line.at(0)));
    EXPECT_EQ(lines, 4 * kLines);
}

TEST(FileTextStreams, ReadingGivesWhatIsThereAndLeavesTheDescriptorOpen) {
    posix::Pipe pipe = posix::makePipe();
    FileTextStreams streams;
    std::array<char, 4> buffer;
    ASSERT_EQ(::write(pipe.writing.number(), "abcdef", 6), 6);
    EXPECT_EQ(streams.read(pipe.reading.number(), buffer), 4u);
    EXPECT_EQ(std::string(buffer.data(), 4), "abcd");
    EXPECT_EQ(streams.read(pipe.reading.number(), buffer), 2u);
    pipe.writing.close();
    EXPECT_EQ(streams.read(pipe.reading.number(), buffer), 0u);
    EXPECT_NE(::fcntl(pipe.reading.number(), F_GETFD), -1);
}

TEST(FileTextStreams, ReadingADescriptorThatIsNotOpenGivesNothing) {
    std::array<char, 4> buffer;
    EXPECT_EQ(FileTextStreams().read(-1, buffer), 0u);
}

} // namespace
