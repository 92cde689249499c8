// The sweep itself: that it finds what is wrong with updaters that are wrong, each in one way, and
// nothing with one that is right. The updaters are shell scripts; the new version stands in a
// folder beside.
#include "tests/reliability/Sweep.h"

#include <cerrno>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/reliability/FlushRule.h"

namespace {

using sweep::Act;
using sweep::Call;
using sweep::Counts;
using sweep::Effect;
using sweep::Outcome;
using sweep::Plan;
using sweep::Sweep;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Kind = tests::Item::Kind;

tests::Items before() {
    return {{"app", {}},
            {"app/program", {.kind = Kind::file, .mode = 0755, .text = "one"}},
            {"app/text", {.kind = Kind::file, .mode = 0600, .text = "same"}},
            {"link", {.kind = Kind::link, .text = "../../outside"}}};
}

tests::Items after() {
    tests::Items items = before();
    items["app/program"].text = "two";
    items["app/new"] = {.kind = Kind::file, .text = "three"};
    return items;
}

// $1 is the new version, $2 the copy, $3 the program that exchanges names.
constexpr const char* kCareful = R"(
staged="$2.staged"
rm -rf "$staged" &&
    cp -R --preserve=mode,timestamps,links,xattr "$1" "$staged" && sync -f "$staged" &&
    "$3" "$staged" "$2" || { rm -rf "$staged"; exit 1; }
sync -f "${2%/*}" || echo "the disk did not confirm" >&2
rm -rf "$staged" || echo "something is left" >&2
)";

constexpr const char* kInPlace = R"(cp -R --preserve=mode "$1/." "$2/")";

constexpr const char* kTwoRenames = R"(
staged="$2.staged"
[ -e "$2" ] || mv "$2.aside" "$2"
rm -rf "$staged" "$2.aside" &&
    cp -R --preserve=mode "$1" "$staged" && sync -f "$staged" &&
    mv "$2" "$2.aside" && mv "$staged" "$2" && sync -f "${2%/*}" && rm -rf "$2.aside"
)";

class SweepTest : public testing::Test {
  protected:
    SweepTest() : stage(before(), after()) { tests::build(after(), stage.path("new")); }

    Sweep sweepOf(const std::string& script, bool mayBeAway = false) {
        return Sweep({.stage = stage,
                      .command = {"sh", "-c", script, "updater", stage.path("new"), stage.copy(),
                                  EXCHANGE_NAMES},
                      .mayBeAway = mayBeAway});
    }

    /// The careful one with a fault.
    static std::string careful(std::string_view part, std::string_view instead) {
        std::string script = kCareful;
        const auto at = script.find(part);
        EXPECT_NE(at, std::string::npos) << part;
        return script.replace(at, part.size(), instead);
    }

    sweep::Stage stage;
};

TEST_F(SweepTest, LetsACarefulUpdaterPassWhereverItIsKilled) {
    const Sweep sweep = sweepOf(kCareful);
    for (const Counts& counts : {sweep.killBefore({}), sweep.killAfter({})}) {
        EXPECT_THAT(counts.complaints, IsEmpty());
        EXPECT_EQ(counts.runs, counts.calls);
        EXPECT_GT(counts.before, 5U);
        EXPECT_GT(counts.after, 3U);
        EXPECT_EQ(counts.before + counts.after, counts.runs);
    }
}

TEST_F(SweepTest, LetsACarefulUpdaterPassWhicheverCallFails) {
    const Sweep sweep = sweepOf(kCareful);
    for (const int error : {ENOSPC, EACCES}) {
        const Counts once = sweep.failOnce(error, {.stride = 2});
        EXPECT_THAT(once.complaints, IsEmpty());
        EXPECT_GT(once.runs, 2U);
        EXPECT_GT(once.before, 0U);
        const Counts on = sweep.failFromThere(error, {.first = 2, .stride = 4});
        EXPECT_THAT(on.complaints, IsEmpty());
        EXPECT_GT(on.runs, 1U);
    }
}

TEST_F(SweepTest, FindsACopyThatIsTornByAnUpdaterThatWorksInPlace) {
    const Counts counts = sweepOf(kInPlace).killBefore({});
    EXPECT_THAT(counts.complaints, Contains(HasSubstr("the copy is torn")));
}

TEST_F(SweepTest, FindsACopyThatIsTornByAnErrorInPlace) {
    EXPECT_THAT(sweepOf(kInPlace).failOnce(ENOSPC, {}).complaints,
                Contains(HasSubstr("the copy is torn")));
    EXPECT_THAT(sweepOf(kInPlace).failFromThere(EIO, {}).complaints,
                Contains(HasSubstr("the copy is torn")));
}

TEST_F(SweepTest, FindsTheMomentBetweenTwoRenames) {
    EXPECT_THAT(sweepOf(kTwoRenames).killAfter({}).complaints,
                Contains(HasSubstr("the copy is not there")));
}

TEST_F(SweepTest, AllowsTheMomentBetweenTwoRenamesWhereItHasToBe) {
    const Counts counts = sweepOf(kTwoRenames, true).killAfter({});
    EXPECT_THAT(counts.complaints, IsEmpty());
    EXPECT_GE(counts.away, 1U);
}

TEST_F(SweepTest, FindsACopyThatIsNeitherThereNorBeside) {
    const std::string script = R"(mv "$2" "$TMPDIR/old" && cp -R --preserve=mode "$1" "$2")";
    EXPECT_THAT(sweepOf(script, true).killAfter({}).complaints,
                Contains(HasSubstr("neither there nor beside")));
}

TEST_F(SweepTest, FindsWhatAnErrorLeavesBehind) {
    const std::string script = careful("rm -rf \"$staged\"; exit 1", "exit 1");
    EXPECT_THAT(sweepOf(script).failOnce(ENOSPC, {}).complaints, Contains(HasSubstr("leaves")));
}

TEST_F(SweepTest, FindsWhatTheNextRunDoesNotTakeAway) {
    const std::string script = careful("staged=\"$2.staged\"", "staged=\"$2.$$\"");
    EXPECT_THAT(sweepOf(script).killBefore({}).complaints,
                Contains(HasSubstr("the next run leaves")));
}

TEST_F(SweepTest, FindsAnErrorThatIsTakenForSuccess) {
    const std::string script = careful("exit 1", "exit 0");
    EXPECT_THAT(sweepOf(script).failOnce(EACCES, {}).complaints,
                Contains(HasSubstr("answers 0 and the copy is old")));
}

TEST_F(SweepTest, FindsSuccessThatIsTakenForAnError) {
    const std::string script = careful("|| echo \"something is left\" >&2", "");
    EXPECT_THAT(sweepOf(script).failOnce(EACCES, {}).complaints,
                Contains(HasSubstr("answers 1 and the copy is new")));
}

TEST_F(SweepTest, FindsAFailureWithoutAWord) {
    EXPECT_THAT(sweepOf("exec 2>&-\n" + std::string(kCareful)).failOnce(ENOSPC, {}).complaints,
                Contains(HasSubstr("fails without a word")));
}

TEST_F(SweepTest, FindsATouchOutside) {
    const std::string script = std::string(kCareful) + "echo more >>\"$2/link/keep\"";
    EXPECT_THAT(sweepOf(script).killAfter({}).complaints,
                Contains(HasSubstr("touches what is outside")));
}

TEST_F(SweepTest, FindsAChangeFarFromTheCopy) {
    const tests::TemporaryFolder elsewhere;
    const std::string script = ": >'" + elsewhere.path("file") + "'\n" + kCareful;
    EXPECT_THAT(sweepOf(script).killBefore({.first = 2, .stride = 50}).complaints,
                Each(HasSubstr("changes something elsewhere")));
}

TEST_F(SweepTest, IsStruckAtTheCallItWasGiven) {
    // The script's own changes: a file that is made and written to, and another.
    const sweep::TracedCommand command(
        {"sh", "-c", "echo one >\"$1/one\"; echo two >\"$1/two\"", "writer", stage.path("tmp")},
        stage.folder());
    const auto names = [&] { return stage.leftovers(); };
    const auto run = [&](Act act, std::size_t at) {
        stage.restore();
        return command.run({.act = act, .at = at, .error = ENOSPC});
    };
    EXPECT_EQ(run(Act::watch, 1).counted, 4U);
    EXPECT_TRUE(run(Act::killBefore, 1).killed);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_TRUE(run(Act::killAfter, 1).killed);
    EXPECT_THAT(names(), testing::ElementsAre("tmp/one"));
    EXPECT_EQ(std::filesystem::file_size(stage.path("tmp/one")), 0U);
    EXPECT_TRUE(run(Act::killBefore, 3).killed);
    EXPECT_EQ(std::filesystem::file_size(stage.path("tmp/one")), 4U);
    EXPECT_THAT(names(), testing::ElementsAre("tmp/one"));

    const Outcome failed = run(Act::failOnce, 1);
    EXPECT_FALSE(failed.killed);
    EXPECT_THAT(failed.errors, HasSubstr("No space left"));
    EXPECT_THAT(names(), testing::ElementsAre("tmp/two"));
    run(Act::failFromThere, 1);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(run(Act::killBefore, 5).struck);
}

TEST_F(SweepTest, FollowsThreadsAndKillsAllThatWasStarted) {
    // What the script has started goes on writing unless it is killed as well.
    const sweep::TracedCommand command(
        {"sh", "-c",
         "(setsid sh -c 'while :; do echo more >>\"$0/log\"; done' \"$1\" &) ; "
         "while :; do sleep 1; done",
         "starter", stage.path("tmp")},
        stage.folder());
    const Outcome outcome = command.run({.act = Act::killAfter, .at = 20});
    EXPECT_TRUE(outcome.killed);
    EXPECT_FALSE(outcome.hung);
    const auto size = std::filesystem::file_size(stage.path("tmp/log"));
    EXPECT_EQ(outcome.counted, 20U);
    EXPECT_EQ(std::filesystem::file_size(stage.path("tmp/log")), size);
}

class FlushRuleTest : public SweepTest {
  protected:
    std::vector<std::string> complaintsOf(const std::string& script) {
        stage.restore();
        const Outcome outcome = sweepOf(script).undisturbed();
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return sweep::unflushed(outcome, stage.copy());
    }
};

TEST_F(FlushRuleTest, HasNothingToSayOfACarefulUpdater) {
    EXPECT_THAT(complaintsOf(kCareful), IsEmpty());
}

TEST_F(FlushRuleTest, FindsWhatWasNotFlushedBeforeItCounted) {
    EXPECT_THAT(complaintsOf(careful("sync -f \"$staged\"", "true")),
                Contains(HasSubstr("not flushed before the new version counted")));
}

TEST_F(FlushRuleTest, TakesAFlushOfOneFileForThatFileAlone) {
    const auto complaints =
        complaintsOf(careful("sync -f \"$staged\"", "sync \"$staged/app/program\""));
    EXPECT_THAT(complaints, Contains(HasSubstr("app/new")));
    EXPECT_THAT(complaints, Not(Contains(HasSubstr("app/program"))));
}

TEST_F(FlushRuleTest, FindsARemovalBeforeThePlaceWasFlushed) {
    EXPECT_THAT(complaintsOf(careful("sync -f \"${2%/*}\"", "true")),
                Contains(HasSubstr("removed before the new version's place was flushed")));
}

TEST_F(FlushRuleTest, FindsAPlaceThatWasNeverFlushed) {
    const std::string script = careful("sync -f \"${2%/*}\"", "true");
    EXPECT_THAT(complaintsOf(script), Contains(HasSubstr("was never flushed")));
}

} // namespace
