// The install log: one plain-text file in the user's Library that tells, line by line, what was
// done to the system. Every facet that changes or inspects something writes through it. It is only
// ever appended to: never read back, cut or rotated.
//
// Each line stands alone: the file is opened, appended to with one write and closed again, so
// nothing is lost if the program stops, and lines of several programs never mix. A file or folder
// that can't be written loses the line silently; the install goes on.
// Main thread, but for the installation block, which may write too; there is no state to share.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "engine/OpMode.h"
#include "platform/controls/TextField.h"
#include "platform/ports/Clock.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/SystemPlaces.h"
#include "platform/ports/TextStreams.h"

namespace ec {

/// The log file; the leading "~" is expanded afresh at every write.
inline constexpr std::string_view gLogName = "~/Library/Logs/Scrivel 21 Stub Install.log";

/// A tool's output as text: nothing is decoded, each byte is one character, those above 127 as
/// Latin-1 has them. Answers UTF-8.
std::string bytesAsCharacters(std::string_view bytes);
/// And back: the tool's output as it was.
std::string charactersAsBytes(std::string_view text);

class InstallLog {
  public:
    struct Needs {
        const ports::SystemPlaces& places;
        ports::Clock& clock;
        ports::TextStreams& streams;
        const ports::LocalizedTexts& texts;
        controls::TextField& processingText;
        /// Told each message, without its date, on the thread that writes it. May be empty.
        std::function<void(std::string_view)> written;
    };
    explicit InstallLog(Needs needs) : m_needs(std::move(needs)) {}
    InstallLog(const InstallLog&) = delete;
    InstallLog& operator=(const InstallLog&) = delete;

    /// `logMessage:` writes the date, one blank and the message as given. An empty message still
    /// makes a line.
    void logMessage(std::string_view message);

    /// `logMessage:result:` writes "TEXT:Succeeded" or "TEXT:Failed", the text as given.
    void logMessage(std::string_view text, bool succeeded);

    /// `logInstall:mode:` writes "State: TITLE Mode: MODE", sets the wizard's processing text to
    /// "Processing: TITLE" in the user's language and has it drawn at once, as the main thread is
    /// about to be busy.
    void logInstall(std::string_view title, OpMode mode);

    /// `logResult:message:` writes "TEXT Result= NAME" with the result's name: "Disable" (-1),
    /// "No" (0), "Yes" (1), "Invalid" for any other.
    void logResult(int result, std::string_view text);

    /// Writes the framed block that begins a run: the title line, which brings its own frame, and
    /// the number of this build. `emptyLines` are the empty ones between the two.
    void logBanner(std::string_view titleLine, int emptyLines = 2);

    /// `logException:` writes "Exception Raised TEXT"; `logException` the same with no text.
    void logException(std::string_view text);
    void logException() { logException({}); }

    /// `dumpFDToLog:` writes each line that comes from the descriptor until its end or an error,
    /// and what stands after the last line feed where it is not empty, the bytes as characters (see
    /// `bytesAsCharacters`). Blocks; leaves the descriptor open.
    void dumpFDToLog(int descriptor);

  private:
    Needs m_needs;
};

} // namespace ec
