// A Word application and a startup folder of it as one string, "WORD|||STARTUP|||VERSION": how
// pairs are kept in the breadcrumbs and in the lists of paths. A value; no disk.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ec {

struct PairRecord {
    /// The Word application's path; a record without a separator is this field alone.
    std::string word;
    /// The startup folder's path; empty where the record has none.
    std::string startup;
    /// The major version as text, in decimal; empty where the record has none.
    std::string version;

    /// The fields of a record; those after the third are passed over.
    static PairRecord split(std::string_view record);

    /// "%@|||%@|||%@" of the three fields.
    std::string text() const;

    bool operator==(const PairRecord&) const = default;
};

/// "%@|||%@|||%d": the record of a Word copy with its major version.
std::string pairRecord(std::string_view word, std::string_view startup, std::int32_t version);

} // namespace ec
