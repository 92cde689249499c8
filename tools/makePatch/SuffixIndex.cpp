#include "tools/makePatch/SuffixIndex.h"

#include <new>

#include <divsufsort.h>

namespace tools {

namespace {

constexpr std::size_t kBuckets = 1 << 16;
constexpr std::ptrdiff_t kNeighbours = 6;

std::size_t bucketOf(patch::View two) {
    return static_cast<std::size_t>(two[0]) << 8 | static_cast<std::size_t>(two[1]);
}

} // namespace

SuffixIndex::SuffixIndex(patch::View bytes)
    : m_bytes(bytes), m_sorted(bytes.size()), m_buckets(kBuckets + 1) {
    if (bytes.size() > kMostBytes)
        throw std::bad_alloc();
    if (!bytes.empty() && divsufsort(reinterpret_cast<const sauchar_t*>(bytes.data()),
                                     m_sorted.data(), static_cast<saidx_t>(bytes.size())) != 0)
        throw std::bad_alloc();
    std::vector<std::int32_t> counts(kBuckets);
    for (std::size_t at = 0; at + 1 < bytes.size(); ++at)
        ++counts[bucketOf(bytes.subspan(at, 2))];
    // The last byte alone is a suffix of its own, before all that begin with it.
    std::int32_t begin = 0;
    for (std::size_t bucket = 0; bucket < kBuckets; ++bucket) {
        if (!bytes.empty() && bucket == static_cast<std::size_t>(bytes.back()) << 8)
            ++begin;
        m_buckets[bucket] = begin;
        begin += counts[bucket];
    }
    m_buckets[kBuckets] = begin;
}

SuffixIndex::Found SuffixIndex::longest(patch::View wanted, std::size_t expected) const {
    if (wanted.size() < 2)
        return {};
    wanted = wanted.first(std::min(wanted.size(), kLongest));
    const std::size_t bucket = bucketOf(wanted);
    const std::int32_t* const all = m_sorted.data();
    const std::int32_t* low = all + m_buckets[bucket];
    const std::int32_t* high = low;
    {
        // A bucket ends where the next begins, but for a suffix of one byte that may lie between.
        high = all + m_buckets[bucket + 1];
        if (high > low && m_bytes.size() - static_cast<std::size_t>(high[-1]) < 2)
            --high;
    }
    if (low == high)
        return {};
    const std::int32_t* const first = low;
    const std::int32_t* const last = high;
    // What the bounds share with the wanted bytes, all between them shares too.
    std::size_t lowCommon = 2;
    std::size_t highCommon = 2;
    Found best;
    const std::int32_t* place = low;
    const auto common = [&](const std::int32_t* suffix, std::size_t known) {
        const auto at = static_cast<std::size_t>(*suffix);
        return known + commonLength(m_bytes.subspan(at + known), wanted.subspan(known));
    };
    while (low < high) {
        const std::int32_t* const middle = low + (high - low) / 2;
        const auto at = static_cast<std::size_t>(*middle);
        const std::size_t length = common(middle, std::min(lowCommon, highCommon));
        if (length > best.length) {
            best = {.at = at, .length = length};
            place = middle;
        }
        if (length == wanted.size())
            break;
        if (at + length == m_bytes.size() || m_bytes[at + length] < wanted[length]) {
            low = middle + 1;
            lowCommon = length;
        } else {
            high = middle;
            highCommon = length;
        }
    }
    const auto distance = [&](std::size_t at) {
        return at > expected ? at - expected : expected - at;
    };
    for (const std::ptrdiff_t step : {-1, 1}) {
        const std::int32_t* near = place;
        for (std::ptrdiff_t tries = 0; tries < kNeighbours; ++tries) {
            if (near == (step < 0 ? first : last - 1))
                break;
            near += step;
            if (common(near, 2) < best.length)
                break;
            if (distance(static_cast<std::size_t>(*near)) < distance(best.at))
                best.at = static_cast<std::size_t>(*near);
        }
    }
    return best;
}

} // namespace tools
