#include "tools/makePatch/Matching.h"

#include <algorithm>

#include "tools/makePatch/SuffixIndex.h"

namespace tools {

using patch::Bytes;
using patch::Match;
using patch::View;

namespace {

/// So many bytes more a match must promise before it is worth breaking off another.
constexpr std::size_t kGain = 8;
/// A run as long as this along the match at hand is followed without a look at others.
constexpr std::size_t kRun = 24;
/// Where nothing is found for long, only every so many bytes are tried at last.
constexpr std::size_t kWidestStep = 8;
constexpr std::size_t kTriesToWiden = 512;

std::size_t equalBytes(View left, View right) {
    const std::size_t most = std::min(left.size(), right.size());
    std::size_t count = 0;
    for (std::size_t at = 0; at < most; ++at)
        count += left[at] == right[at] ? 1 : 0;
    return count;
}

/// Matches one piece; positions in `before` and `after` are those in the spans.
class PieceMatching {
  public:
    PieceMatching(View before, View after, std::vector<Match>& matches, std::uint64_t beforeAt,
                  std::uint64_t afterAt, MatchingEffort& effort)
        : m_before(before), m_after(after), m_index(before), m_matches(matches),
          m_beforeAt(beforeAt), m_afterAt(afterAt), m_effort(effort) {}

    /// `from` is where the first bytes of the piece are expected in the old window.
    void run(std::ptrdiff_t from) {
        m_from = from;
        std::size_t scan = 0;
        std::size_t step = kTriesToWiden;
        while (scan < m_after.size()) {
            const std::size_t run = commonLength(along(scan), m_after.subspan(scan));
            m_effort.bytes += run;
            if (run >= kRun) {
                scan += run;
                step = kTriesToWiden;
                continue;
            }
            const auto [at, length] = m_index.longest(m_after.subspan(scan), expected(scan));
            ++m_effort.looks;
            m_effort.bytes += 2 * length; // once more for what goes on as before
            if (length > kGain &&
                length > kGain + equalBytes(along(scan), m_after.subspan(scan, length))) {
                begin(at, scan);
                scan += length;
                step = kTriesToWiden;
                continue;
            }
            scan += std::max(run, std::min(step++ / kTriesToWiden, kWidestStep));
        }
        end(m_after.size());
    }

    /// Where the old window would go on.
    std::ptrdiff_t nextFrom() const {
        return m_from + static_cast<std::ptrdiff_t>(m_after.size() - m_to);
    }

  private:
    /// Old bytes where the match at hand has them for the new ones from `scan` on; none outside.
    View along(std::size_t scan) const {
        const std::ptrdiff_t at = m_from + static_cast<std::ptrdiff_t>(scan - m_to);
        if (at < 0 || static_cast<std::size_t>(at) >= m_before.size())
            return {};
        return m_before.subspan(static_cast<std::size_t>(at));
    }
    std::size_t expected(std::size_t scan) const {
        return static_cast<std::size_t>(
            std::clamp<std::ptrdiff_t>(m_from + static_cast<std::ptrdiff_t>(scan - m_to), 0,
                                       static_cast<std::ptrdiff_t>(m_before.size())));
    }

    /// Ends the match at hand where its likeness does, before `limit`.
    std::size_t forward(std::size_t limit) {
        const View old = along(m_to);
        const std::size_t most = std::min(limit - m_to, old.size());
        m_effort.bytes += most;
        std::ptrdiff_t score = 0;
        std::ptrdiff_t best = 0;
        std::size_t length = 0;
        for (std::size_t i = 0; i < most; ++i) {
            score += old[i] == m_after[m_to + i] ? 1 : -1;
            if (score > best) {
                best = score;
                length = i + 1;
            }
        }
        return length;
    }

    /// A match begins with these bytes: how far before them does it reach?
    std::size_t backward(std::size_t at, std::size_t scan) {
        const std::size_t most = std::min(scan - m_to, at);
        m_effort.bytes += most;
        std::ptrdiff_t score = 0;
        std::ptrdiff_t best = 0;
        std::size_t length = 0;
        for (std::size_t i = 1; i <= most; ++i) {
            score += m_before[at - i] == m_after[scan - i] ? 1 : -1;
            if (score > best) {
                best = score;
                length = i;
            }
        }
        return length;
    }

    void begin(std::size_t at, std::size_t scan) {
        std::size_t length = forward(scan);
        std::size_t back = backward(at, scan);
        if (m_to + length > scan - back) {
            // Both claim some bytes: they are parted where the sum of likenesses is largest.
            const std::size_t overlap = m_to + length - (scan - back);
            const std::size_t first = m_to + length - overlap;
            const View mine = along(first);
            std::ptrdiff_t score = 0;
            std::ptrdiff_t best = 0;
            std::size_t split = 0;
            for (std::size_t i = 0; i < overlap; ++i) {
                score += mine[i] == m_after[first + i] ? 1 : 0;
                score -= m_before[at - back + i] == m_after[first + i] ? 1 : 0;
                if (score > best) {
                    best = score;
                    split = i + 1;
                }
            }
            length -= overlap - split;
            back -= split;
        }
        keep(length);
        m_to = scan - back;
        m_from = static_cast<std::ptrdiff_t>(at - back);
    }
    void end(std::size_t limit) { keep(forward(limit)); }

    void keep(std::size_t length) {
        if (length == 0)
            return;
        const Match match{.from = m_beforeAt + static_cast<std::uint64_t>(m_from),
                          .to = m_afterAt + m_to,
                          .length = length};
        if (!m_matches.empty()) {
            Match& last = m_matches.back();
            if (last.from + last.length == match.from && last.to + last.length == match.to) {
                last.length += length;
                return;
            }
        }
        m_matches.push_back(match);
    }

    View m_before;
    View m_after;
    SuffixIndex m_index;
    std::vector<Match>& m_matches;
    std::uint64_t m_beforeAt;
    std::uint64_t m_afterAt;
    MatchingEffort& m_effort;
    std::size_t m_to = 0;      ///< where the match at hand begins
    std::ptrdiff_t m_from = 0; ///< and where its bytes are in the old window, if there
};

} // namespace

std::vector<Match> matchesOf(const patch::Source& before, const patch::Source& after,
                             MatchingWindow window, MatchingEffort* effort) {
    MatchingEffort nobodysEffort;
    std::vector<Match> matches;
    Bytes old;
    Bytes fresh;
    std::uint64_t goesOn = 0; // in the old file
    for (std::uint64_t at = 0; at < after.size() && before.size() > 0;) {
        // A new file of one window's size is matched in one piece.
        const bool small = before.size() <= window.before && after.size() <= window.before;
        const std::uint64_t length =
            std::min<std::uint64_t>(small ? after.size() : window.after, after.size() - at);
        const std::uint64_t width = std::min<std::uint64_t>(before.size(), window.before);
        const std::uint64_t slack = width > length ? (width - length) / 2 : 0;
        const std::uint64_t begin =
            std::min(goesOn > slack ? goesOn - slack : 0, before.size() - width);
        old.resize(static_cast<std::size_t>(width));
        before.read(begin, old);
        fresh.resize(static_cast<std::size_t>(length));
        after.read(at, fresh);
        PieceMatching piece(old, fresh, matches, begin, at, effort ? *effort : nobodysEffort);
        piece.run(static_cast<std::ptrdiff_t>(goesOn) - static_cast<std::ptrdiff_t>(begin));
        const std::ptrdiff_t next = static_cast<std::ptrdiff_t>(begin) + piece.nextFrom();
        goesOn =
            next < 0 ? 0 : std::min<std::uint64_t>(static_cast<std::uint64_t>(next), before.size());
        at += length;
    }
    return matches;
}

} // namespace tools
