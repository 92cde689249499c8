#include "tests/reliability/Sweep.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <system_error>

#include <unistd.h>

namespace sweep {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kCopyName = "Scrivel 21";

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : "; ") + text;
    return all;
}

fs::path place() {
    constexpr const char* kMemory = "/dev/shm";
    const bool isGiven = std::getenv("TMPDIR") != nullptr;
    return !isGiven && ::access(kMemory, W_OK) == 0 ? fs::path(kMemory) : fs::temp_directory_path();
}

/// How many of the calls that do this were refused by the plan.
std::ptrdiff_t refused(const Outcome& outcome, Effect effect) {
    return std::ranges::count_if(outcome.calls, [&](const Call& call) {
        return call.refused && call.counted && call.effect == effect;
    });
}

/// Removing a folder takes reading it.
bool couldNotRemove(const Outcome& outcome) {
    return refused(outcome, Effect::remove) + refused(outcome, Effect::open) +
               refused(outcome, Effect::read) >
           0;
}

} // namespace

Stage::Stage(tests::Items installed, tests::Items updated)
    : m_temporary(place()), m_folder(m_temporary.path()), m_installed(std::move(installed)) {
    m_temporary.write("outside/keep", "nobody's business");
    m_temporary.write("outside/below/keep", "nor this");
    fs::permissions(m_temporary.path("outside/keep"), fs::perms(0640));
    m_outside = tests::wholeTreeOf(m_temporary.path("outside"));
    tests::build(updated, copy());
    m_after = tests::wholeTreeOf(copy());
    restore();
    m_before = tests::wholeTreeOf(copy());
}

void Stage::restore() const {
    for (const char* name : {"place", "tmp"})
        fs::remove_all(fs::path(m_folder) / name);
    fs::create_directory(fs::path(m_folder) / "tmp");
    tests::build(m_installed, copy());
}

Stage::State Stage::state() const {
    if (!fs::exists(fs::symlink_status(copy())))
        return State::away;
    const tests::Tree tree = tests::wholeTreeOf(copy());
    return tree == m_before ? State::before : tree == m_after ? State::after : State::neither;
}

bool Stage::isWholeBeside() const {
    const auto names = m_temporary.names("place");
    return std::ranges::any_of(names, [&](const std::string& name) {
        const tests::Tree tree = tests::wholeTreeOf(m_folder + "/place/" + name);
        return tree == m_before || tree == m_after;
    });
}

std::vector<std::string> Stage::leftovers() const {
    auto names = m_temporary.names("place");
    std::erase(names, kCopyName);
    for (const std::string& name : m_temporary.names("tmp"))
        names.push_back("tmp/" + name);
    return names;
}

bool Stage::isOutsideUntouched() const {
    return tests::wholeTreeOf(m_temporary.path("outside")) == m_outside;
}

std::string Stage::difference() const {
    if (!fs::exists(copy()))
        return "the copy is not there";
    const tests::Tree tree = tests::wholeTreeOf(copy());
    for (const auto& [path, text] : m_after)
        if (const auto found = tree.find(path); found == tree.end() || found->second != text)
            return path + (found == tree.end() ? " is missing"
                                               : " is " + found->second.substr(0, 60) +
                                                     " instead of " + text.substr(0, 60));
    for (const auto& [path, text] : tree)
        if (!m_after.contains(path))
            return path + " is too many";
    return {};
}

std::string Counts::text() const {
    std::string text = std::to_string(runs) + " runs over " + std::to_string(calls) +
                       " calls: " + std::to_string(before) + " old, " + std::to_string(after) +
                       " new";
    if (away > 0)
        text += ", " + std::to_string(away) + " away between two renames";
    if (warned > 0)
        text += ", " + std::to_string(warned) + " with a warning";
    if (unmended > 0)
        text += ", " + std::to_string(unmended) + " that could not be cleaned at once";
    return text + ", " + std::to_string(complaints.size()) + " complaints";
}

Sweep::Sweep(Needs needs)
    : m_needs(std::move(needs)), m_command(m_needs.command, m_needs.stage.folder()) {
    m_command.setVariable("TMPDIR=" + m_needs.stage.path("tmp"));
}

Outcome Sweep::undisturbed() const {
    return m_command.run({.refuses = m_needs.refuses});
}

Counts Sweep::kills(Act act, Slice slice) const {
    return all({.act = act, .refuses = m_needs.refuses}, slice, &Sweep::judgeKilled);
}

Counts Sweep::failures(Act act, int error, Slice slice) const {
    return all(
        {.act = act,
         .error = error,
         .counts =
             [error](const Call& call) { return mayAnswer(call.shape->name, call.effect, error); },
         .refuses = m_needs.refuses},
        slice, &Sweep::judgeFailed);
}

Counts Sweep::all(Plan plan, Slice slice, Judge judge) const {
    Counts counts;
    const Act act = plan.act;
    plan.act = Act::watch;
    m_needs.stage.restore();
    counts.calls = m_command.run(plan).counted;
    plan.act = act;
    for (plan.at = slice.first;; plan.at += slice.stride) {
        m_needs.stage.restore();
        const Outcome outcome = m_command.run(plan);
        if (!outcome.struck)
            return counts; // it ended before
        ++counts.runs;
        std::vector<std::string> wrong;
        if (outcome.hung)
            wrong.emplace_back("does not end");
        if (!outcome.outside.empty())
            wrong.push_back("changes something elsewhere: " + outcome.outside.front().text());
        (this->*judge)(outcome, counts, wrong);
        if (!m_needs.stage.isOutsideUntouched())
            wrong.emplace_back("touches what is outside");
        if (!wrong.empty())
            counts.complaints.push_back("at call " + std::to_string(plan.at) + ", " +
                                        outcome.calls[outcome.struckAt].text() + ": " +
                                        joined(wrong));
    }
}

Counts Sweep::killInARow(Row row) const {
    std::mt19937_64 random(row.seed);
    Counts counts;
    m_needs.stage.restore();
    counts.calls = undisturbed().counted;
    for (; counts.runs < row.runs; ++counts.runs) {
        m_needs.stage.restore();
        std::vector<std::string> wrong;
        std::string places;
        for (std::size_t i = 0; i < row.times; ++i) {
            const std::size_t at = 1 + random() % counts.calls;
            places += " " + std::to_string(at);
            const Act act = random() % 2 == 0 ? Act::killBefore : Act::killAfter;
            if (m_command.run({.act = act, .at = at, .refuses = m_needs.refuses}).killed)
                judgeState(counts, wrong);
        }
        judgeNextRun(wrong);
        if (!wrong.empty())
            counts.complaints.push_back("at calls" + places + ": " + joined(wrong));
    }
    return counts;
}

void Sweep::judgeKilled(const Outcome&, Counts& counts, std::vector<std::string>& wrong) const {
    judgeState(counts, wrong);
    judgeNextRun(wrong);
}

void Sweep::judgeState(Counts& counts, std::vector<std::string>& wrong) const {
    switch (m_needs.stage.state()) {
    case Stage::State::before:
        ++counts.before;
        break;
    case Stage::State::after:
        ++counts.after;
        break;
    case Stage::State::away:
        ++counts.away;
        if (!m_needs.mayBeAway)
            wrong.emplace_back("the copy is not there");
        else if (!m_needs.stage.isWholeBeside())
            wrong.emplace_back("the copy is neither there nor beside");
        break;
    case Stage::State::neither:
        wrong.push_back("the copy is torn (" + m_needs.stage.difference() + ")");
    }
}

void Sweep::judgeFailed(const Outcome& outcome, Counts& counts,
                        std::vector<std::string>& wrong) const {
    const Stage::State state = m_needs.stage.state();
    const bool succeeded = outcome.status == 0;
    counts.before += state == Stage::State::before ? 1 : 0;
    counts.after += state == Stage::State::after ? 1 : 0;
    if (state == Stage::State::away)
        judgeAway(outcome, counts, wrong);
    else if (state == Stage::State::neither)
        wrong.push_back("the copy is torn (" + m_needs.stage.difference() + ")");
    else if (succeeded != (state == Stage::State::after))
        wrong.push_back("answers " + std::to_string(outcome.status) + " and the copy is " +
                        (succeeded ? "old" : "new"));
    if (!succeeded && outcome.errors.empty())
        wrong.emplace_back("fails without a word");
    const auto left = m_needs.stage.leftovers();
    if (!left.empty() && state != Stage::State::away) {
        // The old version has to stay until the disk knows the new one at its place.
        const bool hasToStay = succeeded && refused(outcome, Effect::flush) > 0;
        if (!couldNotRemove(outcome) && !hasToStay)
            wrong.push_back("leaves " + joined(left));
        if (outcome.errors.empty())
            wrong.push_back("says nothing of " + joined(left));
        ++(succeeded ? counts.warned : counts.unmended);
    }
    if (!succeeded || !left.empty())
        judgeNextRun(wrong);
}

// A disk that lets one name be changed and then none any more, and can't exchange two.
void Sweep::judgeAway(const Outcome& outcome, Counts& counts,
                      std::vector<std::string>& wrong) const {
    ++counts.away;
    if (!m_needs.mayBeAway || refused(outcome, Effect::rename) < 2)
        wrong.emplace_back("the copy is not there");
    else if (!m_needs.stage.isWholeBeside())
        wrong.emplace_back("the copy is neither there nor beside");
    if (outcome.status == 0)
        wrong.emplace_back("answers 0 and the copy is not there");
}

void Sweep::judgeNextRun(std::vector<std::string>& wrong) const {
    const Outcome next = undisturbed();
    if (next.status != 0)
        wrong.push_back("the next run answers " + std::to_string(next.status) + ": " + next.errors);
    if (m_needs.stage.state() != Stage::State::after)
        wrong.push_back("after the next run the copy is not new: " + m_needs.stage.difference());
    if (const auto left = m_needs.stage.leftovers(); !left.empty())
        wrong.push_back("the next run leaves " + joined(left));
}

} // namespace sweep
