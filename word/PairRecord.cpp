#include "word/PairRecord.h"

namespace ec {

namespace {

constexpr std::string_view kSeparator = "|||";

/// The text up to the separator, which is cut off `rest` with it; all of it where there is none.
std::string nextField(std::string_view& rest) {
    const std::size_t end = rest.find(kSeparator);
    std::string field(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + kSeparator.size());
    return field;
}

} // namespace

PairRecord PairRecord::split(std::string_view record) {
    PairRecord pair;
    pair.word = nextField(record);
    pair.startup = nextField(record);
    pair.version = nextField(record);
    return pair;
}

std::string PairRecord::text() const {
    return std::string(word).append(kSeparator).append(startup).append(kSeparator).append(version);
}

std::string pairRecord(std::string_view word, std::string_view startup, std::int32_t version) {
    return PairRecord{std::string(word), std::string(startup), std::to_string(version)}.text();
}

} // namespace ec
