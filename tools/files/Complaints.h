// Errors on standard error as the system's tools write them, "PROGRAM: PATH: REASON", counted for
// the exit status. Any thread; each complaint is one write.
#pragma once

#include <atomic>
#include <exception>
#include <string>
#include <string_view>

namespace tools {

class Complaints {
  public:
    explicit Complaints(std::string program) : m_program(std::move(program)) {}

    /// Control characters of `path` come out as '?': names are not ours.
    void about(std::string_view path, std::string_view reason);

    /// The reason is the exception's; of a std::system_error its code alone.
    void about(std::string_view path, const std::exception& error);

    /// A whole sentence, control characters in it as above.
    void say(std::string_view sentence);

    /// 0 without a complaint, else 1.
    int status() const { return m_any ? 1 : 0; }

  private:
    std::string m_program;
    std::atomic<bool> m_any = false;
};

} // namespace tools
