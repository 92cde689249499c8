#include "tests/reliability/FlushRule.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <sys/stat.h>

namespace sweep {

namespace {

/// What is changed and not on the disk yet, with a path to name it by.
class Unwritten {
  public:
    void follow(const Call& call) {
        if (call.result < 0 || !changesDisk(call.effect))
            return;
        if (call.effect != Effect::flush)
            for (const Inode& inode : call.changed)
                m_changed.try_emplace(inode, call.text());
        else if (call.shape->name == "sync")
            m_changed.clear();
        else if (!call.changed.empty())
            flush(call.shape->name, call.changed.front());
    }

    bool has(Inode inode) const { return m_changed.contains(inode); }
    const std::map<Inode, std::string>& all() const { return m_changed; }

  private:
    void flush(std::string_view name, Inode inode) {
        if (name == "syncfs")
            std::erase_if(m_changed,
                          [&](const auto& one) { return one.first.device == inode.device; });
        else if (name == "fsync" || name == "fdatasync")
            m_changed.erase(inode);
    }

    std::map<Inode, std::string> m_changed;
};

} // namespace

std::vector<std::string> unflushed(const Outcome& outcome, const std::string& copy) {
    struct ::stat status{};
    const std::string parent = std::filesystem::path(copy).parent_path().native();
    if (::stat(parent.c_str(), &status) != 0)
        return {"the folder that holds the copy is not there"};
    const Inode holder{status.st_dev, status.st_ino};

    const auto putsInPlace = [&](const Call& call) {
        const bool exchanges = call.path == copy && call.shape->name == "renameat2";
        return call.effect == Effect::rename && call.result >= 0 &&
               (call.second == copy || exchanges);
    };
    const auto last = std::find_if(outcome.calls.rbegin(), outcome.calls.rend(), putsInPlace);
    if (last == outcome.calls.rend())
        return {"nothing was put in the copy's place"};
    const auto step = last.base() - 1;

    std::vector<std::string> complaints;
    Unwritten unwritten;
    std::for_each(outcome.calls.begin(), step, [&](const Call& call) { unwritten.follow(call); });
    for (const auto& [inode, text] : unwritten.all())
        if (inode != holder)
            complaints.push_back("not flushed before the new version counted: " + text);
    unwritten.follow(*step);
    for (auto call = step + 1; call != outcome.calls.end(); ++call) {
        if (call->effect == Effect::remove && call->result >= 0 && unwritten.has(holder)) {
            complaints.push_back("removed before the new version's place was flushed: " +
                                 call->text());
            break;
        }
        if (call->effect == Effect::flush)
            unwritten.follow(*call);
    }
    if (unwritten.has(holder))
        complaints.emplace_back("the new version's place was never flushed");
    return complaints;
}

} // namespace sweep
