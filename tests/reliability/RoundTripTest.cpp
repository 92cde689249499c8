// makePatch and applyPatch over many pairs of trees, made at random from a seed: what applyPatch
// makes of an installed copy is the new version, byte for byte. tools/round_trip tries more.
#include <cstdio>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/reliability/PatchPrograms.h"
#include "tests/reliability/Sweep.h"

namespace {

using sweep::Outcome;
using sweep::Stage;
using testing::IsEmpty;

/// One pair of versions and the patch between them.
class Pair {
  public:
    Pair(std::uint64_t seed, std::size_t items)
        : m_versions(tests::randomVersions(seed, items)),
          stage(m_versions.installed, m_versions.updated), patch(stage.path("patch")) {
        tests::build(m_versions.before, stage.path("before"));
        tests::build(m_versions.after, stage.path("after"));
        const Outcome made = tests::run(
            tests::makePatch(stage.path("before"), stage.path("after"), patch), stage.folder());
        EXPECT_EQ(made.status, 0) << made.errors;
    }

    Outcome apply(std::string option = {}) const {
        auto command = tests::applyPatch(stage.copy(), patch);
        if (!option.empty())
            command.push_back(std::move(option));
        return tests::run(std::move(command), stage.folder());
    }

    bool isAnUpdate() const { return m_versions.installed != m_versions.updated; }

  private:
    tests::Versions m_versions;

  public:
    const Stage stage;
    const std::string patch;
};

class RoundTrip : public testing::Test {
  protected:
    void overPairs(std::uint64_t count, std::size_t items) {
        const std::uint64_t first = tests::setting("SCRIVEL_PAIRS_SEED", 1);
        const std::uint64_t pairs = tests::setting("SCRIVEL_PAIRS", count);
        for (std::uint64_t seed = first; seed < first + pairs && !HasFailure(); ++seed) {
            SCOPED_TRACE("SCRIVEL_PAIRS_SEED=" + std::to_string(seed));
            // Not always as many, so that the very small trees are among them.
            goAndJudge(Pair(seed, 1 + seed * 7919 % items));
        }
        std::printf("%llu pairs of trees with up to %zu items\n",
                    static_cast<unsigned long long>(pairs), items);
    }

  private:
    static void goAndJudge(const Pair& pair) {
        const Outcome applied = pair.apply();
        EXPECT_EQ(applied.status, 0) << applied.errors;
        EXPECT_EQ(pair.stage.difference(), "");
        EXPECT_THAT(pair.stage.leftovers(), IsEmpty());
        EXPECT_TRUE(pair.stage.isOutsideUntouched());
        EXPECT_THAT(applied.outside, IsEmpty());
    }
};

TEST_F(RoundTrip, GivesTheNewVersionOfManySmallTrees) {
    overPairs(200, 12);
}

TEST_F(RoundTrip, GivesTheNewVersionOfLargerTrees) {
    overPairs(30, 150);
}

TEST(DryRun, ChangesNothingOnDisk) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const Pair pair(seed, 20);
        ASSERT_TRUE(pair.isAnUpdate());
        const Outcome tried = pair.apply("-n");
        EXPECT_EQ(tried.status, 0) << tried.errors;
        EXPECT_EQ(tried.counted, 0U) << tried.calls.front().text();
        EXPECT_EQ(pair.stage.state(), Stage::State::before);

        EXPECT_EQ(pair.apply("--verify").status, 1);
        EXPECT_EQ(pair.apply().status, 0);
        EXPECT_EQ(pair.apply("--verify").status, 0);
        const Outcome after = pair.apply("-n");
        EXPECT_EQ(after.status, 6) << "it is up to date";
        EXPECT_EQ(after.counted, 0U);
    }
}

TEST(SecondRun, LeavesTheNewVersionAsItIs) {
    const Pair pair(7, 20);
    ASSERT_EQ(pair.apply().status, 0);
    const Outcome again = pair.apply();
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(again.counted, 0U);
    EXPECT_EQ(pair.stage.state(), Stage::State::after);
}

} // namespace
