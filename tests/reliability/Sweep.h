// Kills or disturbs an updater at every system call that changes the disk, and takes the verdict
// from the disk: the copy is the old version or the new one, whole, never anything else; nothing
// outside was touched; and the next run makes it good.
//
// A stage is a folder of a test's own:
//   place/Scrivel 21   the installed copy
//   outside            a folder that is none of the updater's business
//   tmp                what TMPDIR names
// The updater may leave nothing in place/ and tmp/, and changes nothing elsewhere.
//
// It lies in memory where the system has a folder for that, as thousands of runs that flush a disk
// take long; TMPDIR names another place.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/reliability/RandomTrees.h"
#include "tests/reliability/TracedCommand.h"
#include "tests/reliability/WholeTree.h"
#include "tests/support/TemporaryFolder.h"

namespace sweep {

class Stage {
  public:
    Stage(tests::Items installed, tests::Items updated);

    /// The copy as it was installed, nothing beside it.
    void restore() const;

    const std::string& folder() const { return m_folder; }
    std::string copy() const { return m_folder + "/place/Scrivel 21"; }
    std::string path(std::string_view name) const { return m_temporary.path(name); }

    enum class State { before, after, away, neither };
    State state() const;
    /// The copy is not at its place, but beside it as a whole.
    bool isWholeBeside() const;
    /// What lies beside the copy, and in tmp.
    std::vector<std::string> leftovers() const;
    bool isOutsideUntouched() const;
    /// Some entry in which the copy is not the new version.
    std::string difference() const;

  private:
    tests::TemporaryFolder m_temporary;
    std::string m_folder;
    tests::Items m_installed;
    tests::Tree m_before;
    tests::Tree m_after;
    tests::Tree m_outside;
};

/// Which of the calls a sweep strikes at: `first`, and from there each `stride`-th.
struct Slice {
    std::size_t first = 1;
    std::size_t stride = 1;
};

/// Kills at places that a seed chooses, each run after the other on what the one before left.
struct Row {
    std::size_t times = 1;
    std::size_t runs = 1;
    std::uint64_t seed = 0;
};

struct Counts {
    std::size_t calls = 0; ///< that count, in a run which nothing disturbs
    std::size_t runs = 0;  ///< that were struck
    std::size_t before = 0;
    std::size_t after = 0;
    std::size_t away = 0;
    std::size_t warned = 0;   ///< ended well but left something that the next run took away
    std::size_t unmended = 0; ///< left something as the disk did not let it be removed
    std::vector<std::string> complaints;

    std::string text() const;
};

class Sweep {
  public:
    struct Needs {
        const Stage& stage;
        std::vector<std::string> command;
        /// Calls that fail in every run.
        std::function<int(const Call&)> refuses = {};
        /// Without an exchange in one step there is a moment at which the copy has no name.
        bool mayBeAway = false;
    };

    explicit Sweep(Needs needs);

    /// A run that nothing disturbs but what is always refused.
    Outcome undisturbed() const;

    Counts killBefore(Slice slice) const { return kills(Act::killBefore, slice); }
    Counts killAfter(Slice slice) const { return kills(Act::killAfter, slice); }
    Counts killInARow(Row row) const;
    Counts failOnce(int error, Slice slice) const { return failures(Act::failOnce, error, slice); }
    Counts failFromThere(int error, Slice slice) const {
        return failures(Act::failFromThere, error, slice);
    }

  private:
    using Judge = void (Sweep::*)(const Outcome&, Counts&, std::vector<std::string>&) const;

    Counts kills(Act act, Slice slice) const;
    Counts failures(Act act, int error, Slice slice) const;
    Counts all(Plan plan, Slice slice, Judge judge) const;
    void judgeState(Counts& counts, std::vector<std::string>& wrong) const;
    void judgeKilled(const Outcome& outcome, Counts& counts, std::vector<std::string>& wrong) const;
    void judgeFailed(const Outcome& outcome, Counts& counts, std::vector<std::string>& wrong) const;
    void judgeAway(const Outcome& outcome, Counts& counts, std::vector<std::string>& wrong) const;
    void judgeNextRun(std::vector<std::string>& wrong) const;

    Needs m_needs;
    TracedCommand m_command;
};

} // namespace sweep
