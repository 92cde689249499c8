// applyPatch on a copy that it is killed over, or whose disk fails, at every call that changes
// something; a slice of the calls here, all of them by tools/kill_sweep. The trees are made at
// random from a seed.
#include "tests/reliability/Sweep.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/reliability/FlushRule.h"
#include "tests/reliability/PatchPrograms.h"

namespace {

using sweep::Call;
using sweep::Counts;
using sweep::Effect;
using sweep::Outcome;
using sweep::Slice;
using sweep::Stage;
using sweep::Sweep;
using testing::IsEmpty;

/// What the copy's file system can't do.
enum class Lacking { nothing, exchange, hardLinks };

int refusal(Lacking lacking, const Call& call) {
    if (lacking == Lacking::exchange && call.shape->name == "renameat2")
        return EINVAL;
    if (lacking == Lacking::hardLinks && call.shape->name == "linkat")
        return EPERM;
    return 0;
}

class ApplySweep : public testing::TestWithParam<Lacking> {
  protected:
    static constexpr std::size_t kItems = 14; ///< of a tree

    /// Calls `judge(sweep, stage)` for each pair of trees.
    template <typename Judge>
    void overTrees(Judge judge) {
        for (std::uint64_t i = 0; i < m_trees && !HasFatalFailure(); ++i) {
            SCOPED_TRACE("SCRIVEL_SWEEP_SEED=" + std::to_string(m_seed + i));
            const tests::Versions versions = tests::randomVersions(m_seed + i, kItems);
            const Stage stage(versions.installed, versions.updated);
            tests::build(versions.before, stage.path("before"));
            tests::build(versions.after, stage.path("after"));
            const std::string patch = stage.path("patch");
            const Outcome made = tests::run(
                tests::makePatch(stage.path("before"), stage.path("after"), patch), stage.folder());
            ASSERT_EQ(made.status, 0) << made.errors;
            judge(Sweep({.stage = stage,
                         .command = tests::applyPatch(stage.copy(), patch),
                         .refuses = [lacking = GetParam()](
                                        const Call& call) { return refusal(lacking, call); },
                         .mayBeAway = GetParam() == Lacking::exchange}),
                  stage);
        }
    }

    /// Each call, or a slice of them that the seed chooses.
    Slice slice(std::size_t stride) const {
        if (m_stride != 0)
            stride = m_stride;
        return {.first = 1 + m_seed % stride, .stride = stride};
    }

    static void report(const std::string& what, const Counts& counts) {
        std::printf("%s: %s\n", what.c_str(), counts.text().c_str());
        std::fflush(stdout);
        constexpr std::size_t kMostShown = 5;
        for (std::size_t i = 0; i < std::min(kMostShown, counts.complaints.size()); ++i)
            ADD_FAILURE() << what << " " << counts.complaints[i];
        EXPECT_GT(counts.runs, 0U) << what;
    }

    std::uint64_t m_seed = tests::setting("SCRIVEL_SWEEP_SEED", 2021);
    std::uint64_t m_trees = tests::setting("SCRIVEL_SWEEP_TREES", 1);
    std::size_t m_stride = tests::setting("SCRIVEL_SWEEP_STRIDE", 0);
};

TEST_P(ApplySweep, IsTheOldOrTheNewVersionWhereverItIsKilled) {
    overTrees([&](const Sweep& sweep, const Stage&) {
        report("killed before the call", sweep.killBefore(slice(9)));
        report("killed after the call", sweep.killAfter(slice(11)));
    });
}

TEST_P(ApplySweep, IsTheOldOrTheNewVersionWhereverItIsKilledAgainAndAgain) {
    overTrees([&](const Sweep& sweep, const Stage&) {
        report("killed three times in a row",
               sweep.killInARow(
                   {.times = 3, .runs = m_stride != 0 ? 300U / m_stride : 10U, .seed = m_seed}));
    });
}

TEST_P(ApplySweep, IsTheOldVersionAfterAnErrorAndTheNewOneAfterSuccess) {
    static constexpr int kErrors[] = {ENOSPC, EDQUOT, EIO,   EACCES,    EPERM,
                                      EROFS,  EMFILE, EINTR, EOPNOTSUPP};
    overTrees([&](const Sweep& sweep, const Stage&) {
        for (const int error : kErrors) {
            const std::string name = ::strerrorname_np(error);
            const Slice where = slice(error == EIO ? 41 : error == EOPNOTSUPP ? 1 : 19);
            report(name + " once", sweep.failOnce(error, where));
            if (error != EINTR) // for ever, nothing could go on
                report(name + " from there on", sweep.failFromThere(error, where));
        }
    });
}

TEST_P(ApplySweep, HasFlushedEverythingBeforeItCounts) {
    overTrees([&](const Sweep& sweep, const Stage& stage) {
        const Outcome outcome = sweep.undisturbed();
        ASSERT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(stage.state(), Stage::State::after) << stage.difference();
        EXPECT_THAT(sweep::unflushed(outcome, stage.copy()), IsEmpty());
    });
}

// Some attributes are the system's own and can't be set by anybody; no copy may miss an update for
// them.
TEST(ApplyOnARefusingSystem, LeavesOutAttributesThatItMayNotSetWhichIsWanted) {
    const tests::Versions versions = tests::randomVersions(2021, 20);
    const Stage stage(versions.installed, versions.updated);
    tests::build(versions.before, stage.path("before"));
    tests::build(versions.after, stage.path("after"));
    const std::string patch = stage.path("patch");
    tests::run(tests::makePatch(stage.path("before"), stage.path("after"), patch), stage.folder());
    std::size_t refused = 0;
    const Outcome outcome =
        sweep::TracedCommand(tests::applyPatch(stage.copy(), patch), stage.folder())
            .run({.refuses = [&](const Call& call) {
                const bool sets = call.shape->name == "fsetxattr";
                refused += sets ? 1 : 0;
                return sets ? EPERM : 0;
            }});
    EXPECT_GT(refused, 0U);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const auto now = tests::treeOf(stage.copy());
    tests::build(versions.updated, stage.path("updated"));
    EXPECT_EQ(now, tests::treeOf(stage.path("updated")));
}

std::string nameOf(const testing::TestParamInfo<Lacking>& lacking) {
    switch (lacking.param) {
    case Lacking::exchange:
        return "WithoutAnExchangeInOneStep";
    case Lacking::hardLinks:
        return "WithoutHardLinks";
    default:
        return "ThatHasEverything";
    }
}

INSTANTIATE_TEST_SUITE_P(OnAFileSystem, ApplySweep,
                         testing::Values(Lacking::nothing, Lacking::exchange, Lacking::hardLinks),
                         nameOf);

} // namespace
