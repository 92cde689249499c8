#include "platform/macos/AuthorizationServices.h"

#include <fcntl.h>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/macos/PrivilegedExecution.h"
#include "platform/posix/ChildStreams.h"
#include "platform/posix/FilledPipe.h"

namespace macoshost {

namespace {

constexpr AuthorizationFlags kFlags = kAuthorizationFlagInteractionAllowed |
                                      kAuthorizationFlagExtendRights |
                                      kAuthorizationFlagPreAuthorize;
static_assert(kFlags == 19);
static_assert(ports::Administrator::kDenied == errAuthorizationDenied);
static_assert(ports::Administrator::kToolExecuteFailure == errAuthorizationToolExecuteFailure);

/// The arguments as the system takes them, a null pointer at their end. They stay `arguments`'.
std::vector<char*> vectorOf(std::vector<std::string>& arguments) {
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

int AuthorizationServices::createSession() {
    freeSession();
    AuthorizationRef session = nullptr;
    const OSStatus status =
        AuthorizationCreate(nullptr, kAuthorizationEmptyEnvironment, kFlags, &session);
    if (status == errAuthorizationSuccess)
        m_session = session;
    return status;
}

int AuthorizationServices::requestRights() {
    m_granted = false;
    if (!m_session)
        return errAuthorizationInvalidRef;
    AuthorizationItem administrator{
        .name = "system.privilege.admin", .valueLength = 0, .value = nullptr, .flags = 0};
    const AuthorizationRights rights{.count = 1, .items = &administrator};
    const OSStatus status = AuthorizationCopyRights(
        m_session, &rights, kAuthorizationEmptyEnvironment, kFlags, nullptr);
    m_granted = status == errAuthorizationSuccess;
    return status;
}

int AuthorizationServices::start(const ports::ToolCall& call,
                                 const std::function<void(int)>& reader) {
    // The system would ask by itself, in the middle of the work.
    if (!m_granted)
        return kDenied;
    std::optional<posix::FilledPipe> toReader;
    if (m_needs.whileWaiting && !toReader.emplace().isOpen())
        return kToolExecuteFailure;
    std::vector<std::string> arguments = call.arguments;
    std::FILE* opened = nullptr;
    const OSStatus status =
        executeWithPrivileges(m_session, call.tool.c_str(), vectorOf(arguments).data(), &opened);
    Stream stream(opened);
    if (status != errAuthorizationSuccess || !stream)
        return status;
    const int descriptor = ::fileno(stream.get());
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC); // the next tool is not to hold this one's input
    if (toReader) {
        std::string output;
        posix::takeInToTheEnd(
            descriptor, [&](std::string_view bytes) { output += bytes; }, m_needs.whileWaiting);
        toReader->read(reader, [&] { toReader->write(output); });
    } else {
        const posix::RestThrownAway rest(descriptor);
        reader(descriptor);
    }
    // A session that was ended meanwhile, by who was called while this waited, keeps nothing.
    if (m_session)
        m_streams.push_back(std::move(stream));
    if (m_streams.size() > kStreamsKept)
        m_streams.pop_front();
    return status;
}

void AuthorizationServices::freeSession() {
    m_granted = false;
    m_streams.clear();
    if (AuthorizationRef session = std::exchange(m_session, nullptr))
        AuthorizationFree(session, kAuthorizationFlagDefaults);
}

} // namespace macoshost
