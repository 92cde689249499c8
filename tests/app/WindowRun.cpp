#include "tests/app/WindowRun.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <regex>
#include <stdexcept>
#include <thread>

#include <xcb/xcb.h>

#include "platform/posix/Descriptor.h"

namespace tests {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
constexpr auto kBetweenLooks = 10ms;

posix::Descriptor fileFor(const fs::path& path) {
    return posix::Descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
}

posix::SpawnedTools::Captured xdotool(std::vector<std::string> arguments) {
    posix::SpawnedTools tools({});
    return tools.capture({SCRIVEL_XDOTOOL, std::move(arguments)});
}

void xdotoolOrThrow(const std::vector<std::string>& arguments) {
    if (xdotool(arguments).status != 0)
        throw std::runtime_error("xdotool " + arguments.front() + " failed");
}

int numberAfter(const std::string& name, const std::string& text) {
    const std::size_t at = text.find(name + "=");
    if (at == std::string::npos)
        throw std::runtime_error("xdotool tells no " + name);
    return std::stoi(text.substr(at + name.size() + 1));
}

std::vector<Json> eventsIn(const std::string& output) {
    std::vector<Json> events;
    std::size_t begin = 0;
    for (std::size_t end; (end = output.find('\n', begin)) != std::string::npos; begin = end + 1)
        events.push_back(Json::parse(output.substr(begin, end - begin)));
    return events;
}

class Connection {
  public:
    Connection() : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~Connection() { xcb_disconnect(m_connection); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    xcb_atom_t atom(std::string_view name) {
        const auto asked =
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(m_connection, asked, nullptr), &std::free);
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    void send(const xcb_client_message_event_t& message) {
        std::array<char, 32> bytes{};
        static_assert(sizeof message == sizeof bytes);
        std::memcpy(bytes.data(), &message, sizeof message);
        xcb_send_event(m_connection, 0, message.window, XCB_EVENT_MASK_NO_EVENT, bytes.data());
        xcb_flush(m_connection);
    }

  private:
    xcb_connection_t* m_connection;
};

/// Open from the first test to the end: an X server that has lost its last client begins anew, and
/// turns away who comes meanwhile.
Connection& display() {
    static Connection connection;
    return connection;
}

} // namespace

void WindowRun::TearDown() {
    if (m_program && !hasEnded()) {
        send(SIGKILL);
        m_program->wait();
    }
    InstallerRun::TearDown();
}

void WindowRun::start(const std::string& command) {
    std::vector<std::string> entries = {"TMPDIR=" + temporary.string(),
                                        "XDG_RUNTIME_DIR=" + folder.string(), "QT_QPA_PLATFORM=xcb",
                                        "QT_SCALE_FACTOR=1",
                                        // its client library keeps memory, seen by leak checks
                                        "DBUS_SESSION_BUS_ADDRESS=disabled:", "LC_ALL=",
                                        "LC_MESSAGES=", "LANGUAGE=", "LANG=C.UTF-8"};
    for (const std::string& entry : variables) {
        const std::string name = entry.substr(0, entry.find('=') + 1);
        std::erase_if(entries, [&](const auto& other) { return other.starts_with(name); });
        entries.push_back(entry);
    }
    const posix::Descriptor output = fileFor(folder / "output");
    const posix::Descriptor error = fileFor(folder / "error");
    display();
    m_program = std::make_unique<posix::ChildProcess>();
    ASSERT_EQ(m_program->start({.program = bundle / "Contents/MacOS/Scrivel 21 Installer",
                                .arguments = {command, "--root", root, "--home", home, "--events",
                                              "--no-launch"},
                                .output = output.number(),
                                .error = error.number(),
                                .environment = entries}),
              0);
}

void WindowRun::open(const std::string& command) {
    start(command);
    waitUntil("the window", [this] { return !windows().empty(); });
    m_window = windows().front();
}

std::vector<WindowRun::WindowId> WindowRun::windows() const {
    std::istringstream lines(
        xdotool({"search", "--onlyvisible", "--pid", std::to_string(m_program->pid())}).output);
    std::vector<WindowId> found;
    for (WindowId line; std::getline(lines, line);)
        found.push_back(line);
    return found;
}

WindowRun::WindowId WindowRun::sheet(const WindowId& before) {
    WindowId found;
    waitUntil("a sheet", [&] {
        const auto all = windows();
        const auto sheet = std::ranges::find_if(
            all, [&](const WindowId& each) { return each != m_window && each != before; });
        if (sheet != all.end())
            found = *sheet;
        return sheet != all.end();
    });
    return found;
}

std::string WindowRun::titleOf(const WindowId& window) {
    std::string title = xdotool({"getwindowname", window}).output;
    std::erase(title, '\n');
    return title;
}

void WindowRun::click(const WindowId& window, Spot spot) {
    const std::string geometry = xdotool({"getwindowgeometry", "--shell", window}).output;
    const int x = numberAfter("WIDTH", geometry) - spot.fromRight;
    const int y = numberAfter("HEIGHT", geometry) - spot.fromBottom;
    xdotoolOrThrow(
        {"mousemove", "--window", window, std::to_string(x), std::to_string(y), "click", "1"});
}

void WindowRun::press(const WindowId& window, const std::string& key) {
    // without a window manager nobody else gives a window the keyboard
    xdotoolOrThrow({"windowfocus", window, "key", key});
}

void WindowRun::pressAll(const WindowId& window, const std::vector<std::string>& keys) {
    for (const std::string& key : keys)
        press(window, key);
}

void WindowRun::requestClose(const WindowId& window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(std::stoul(window));
    message.type = display().atom("WM_PROTOCOLS");
    message.data.data32[0] = display().atom("WM_DELETE_WINDOW");
    message.data.data32[1] = XCB_CURRENT_TIME;
    display().send(message);
}

void WindowRun::send(int signal) const {
    ::kill(m_program->pid(), signal);
}

std::vector<Json> WindowRun::eventsSoFar() const {
    return eventsIn(contentsOf(folder / "output"));
}

void WindowRun::awaitEvent(const std::string& event, const std::string& member,
                           const std::string& value) {
    waitUntil("the event " + event + " " + value, [&] {
        return std::ranges::any_of(eventsSoFar(), [&](const Json& each) {
            return each.at("event") == event && (member.empty() || each.value(member, "") == value);
        });
    });
}

void WindowRun::awaitPage(int page, std::size_t time) {
    waitUntil("page " + std::to_string(page), [&] {
        const auto events = eventsSoFar();
        return std::ranges::count_if(events, [&](const Json& each) {
                   return each.at("event") == "page" && each.at("page") == page;
               }) >= static_cast<std::ptrdiff_t>(time);
    });
}

WindowRun::Result WindowRun::end() {
    waitUntil("the program's end", [this] { return hasEnded(); });
    Result result;
    result.exit = m_program->wait();
    result.output = contentsOf(folder / "output");
    result.error = contentsOf(folder / "error");
    result.events = eventsIn(result.output);
    return result;
}

void WindowRun::waitUntil(std::string_view what, const std::function<bool()>& condition) const {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error(std::string(what) + " never came; the program said:\n" +
                                     contentsOf(folder / "output") + contentsOf(folder / "error"));
        std::this_thread::sleep_for(kBetweenLooks);
    }
}

void WindowRun::holdDitto() {
    const fs::path real = folder / "ditto.real";
    fs::copy_file(bundle / "Contents/MacOS/ditto", real);
    // When a test fails, the script ends with the folder.
    replaceTool("ditto", "cd '" + folder.string() + "' && : >reached\n" +
                             "until [ -e gate ]; do [ -e reached ] || exit 1; sleep 0.02; done\n" +
                             "exec '" + real.string() + "' \"$@\"");
}

void WindowRun::waitForDitto() const {
    waitUntil("the start of ditto", [this] { return fs::exists(folder / "reached"); });
}

void WindowRun::openGate() const {
    std::ofstream(folder / "gate").put('\n');
}

std::vector<std::string> WindowRun::storyOf(const Result& result) {
    static const std::regex temporaryName("/SV[^/ \"]+");
    std::vector<std::string> story;
    for (Json event : result.events) {
        event.erase("time");
        if (event.at("event") != "progress")
            story.push_back(std::regex_replace(event.dump(), temporaryName, "/SV"));
    }
    return story;
}

} // namespace tests
