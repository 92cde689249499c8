#include "tests/macos/FakeAuthorization.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string_view>
#include <sys/socket.h>

namespace fakes {

namespace {

Authorization* current = nullptr;

std::string numberOf(AuthorizationRef session) {
    return std::to_string(reinterpret_cast<std::uintptr_t>(session));
}

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

StartedTool::StartedTool(posix::Descriptor toolsEnd, std::string output, bool endsByItself)
    : m_end(std::move(toolsEnd)), m_writing([this, output = std::move(output), endsByItself] {
          m_wroteAll = writeAll(m_end.number(), output);
          if (endsByItself)
              end();
      }) {}

void StartedTool::end() {
    ::shutdown(m_end.number(), SHUT_WR);
}

StartedTool::~StartedTool() {
    // A tool whose output nobody reads must not hold up the end of a test.
    ::shutdown(m_end.number(), SHUT_RDWR);
    wroteAll();
}

bool StartedTool::wroteAll() {
    if (m_writing.joinable())
        m_writing.join();
    return m_wroteAll;
}

bool StartedTool::inputIsOpen() const {
    char byte = 0;
    return ::recv(m_end.number(), &byte, 1, MSG_DONTWAIT) < 0;
}

Authorization::Authorization() {
    current = this;
}

Authorization::~Authorization() {
    current = nullptr;
}

Authorization& authorization() {
    return *current;
}

} // namespace fakes

using fakes::authorization;
using fakes::numberOf;

extern "C" {

OSStatus AuthorizationCreate(const AuthorizationRights* rights,
                             const AuthorizationEnvironment* environment, AuthorizationFlags flags,
                             AuthorizationRef* created) {
    EXPECT_EQ(rights, nullptr);
    EXPECT_EQ(environment, nullptr);
    authorization().calls.push_back("create " + std::to_string(flags));
    if (authorization().createStatus == 0)
        *created = reinterpret_cast<AuthorizationRef>(
            static_cast<std::uintptr_t>(++authorization().sessions));
    return authorization().createStatus;
}

OSStatus AuthorizationCopyRights(AuthorizationRef session, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* environment,
                                 AuthorizationFlags flags, AuthorizationRights** answered) {
    EXPECT_EQ(environment, nullptr);
    EXPECT_EQ(answered, nullptr);
    std::string call = "rights " + numberOf(session);
    for (UInt32 i = 0; i < rights->count; ++i) {
        const AuthorizationItem& item = rights->items[i];
        EXPECT_EQ(item.valueLength, 0u);
        EXPECT_EQ(item.value, nullptr);
        EXPECT_EQ(item.flags, 0u);
        call += " " + std::string(item.name);
    }
    authorization().calls.push_back(call + " " + std::to_string(flags));
    return authorization().rightsStatus;
}

OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef session, const char* pathToTool,
                                            AuthorizationFlags options, char* const* arguments,
                                            FILE** communicationsPipe) {
    std::string call = "start " + numberOf(session) + " " + pathToTool;
    for (; *arguments; ++arguments)
        call += "|" + std::string(*arguments);
    authorization().calls.push_back(call + "|" + std::to_string(options));
    if (authorization().startStatus != 0 || !authorization().givesStream)
        return authorization().startStatus;
    int ends[2];
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    *communicationsPipe = ::fdopen(ends[0], "r+");
    authorization().streams.push_back(ends[0]);
    authorization().tools.emplace_back(posix::Descriptor(ends[1]), authorization().output,
                                       authorization().toolsEndByThemselves);
    return 0;
}

OSStatus AuthorizationFree(AuthorizationRef session, AuthorizationFlags flags) {
    authorization().calls.push_back("free " + numberOf(session) + " " + std::to_string(flags));
    return 0;
}

} // extern "C"
