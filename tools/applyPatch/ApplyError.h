// How a run of applyPatch ends: the exit status, and the sentence that goes with it.
#pragma once

#include <stdexcept>
#include <string>

namespace tools {

/// The exit status. After a signal it is 128 and the signal's number.
enum class Ending : int {
    done = 0,      ///< applied, or applies, or is what was asked for
    differs = 1,   ///< the copy is not what the patch is for
    usage = 2,     ///< wrong arguments, no such folder
    notAPatch = 3, ///< the patch is broken, not signed, of another version
    refused = 4,   ///< the system refused something: space, rights, an error of the disk
    otherRun = 5,  ///< another run is at work on the copy
    current = 6,   ///< tried out on a copy that is the new version already
};

/// Ends the run. The sentence names file, place and remedy.
class ApplyError : public std::runtime_error {
  public:
    ApplyError(Ending ending, const std::string& sentence)
        : std::runtime_error(sentence), m_ending(ending) {}

    Ending ending() const { return m_ending; }

  private:
    Ending m_ending;
};

/// The system refused something about `path`: what it says, and what can be done about it.
ApplyError refusal(const std::string& path, int error);

} // namespace tools
