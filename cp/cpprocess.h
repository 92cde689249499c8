// An identifier of the running process, and 128-bit unique identifiers with their text form. Plain
// functions; true is success. Safe from any thread.
#pragma once

#include <array>
#include <cstdint>

namespace Corvaldine::CP {

/// Identifies a running process: two words.
struct ProcessSerialNumber {
    std::uint32_t highLongOfPSN = 0; ///< 0 here
    std::uint32_t lowLongOfPSN = 0;  ///< the system's process number
};

/// 16 bytes in the order in which the text form lists them.
using CPUUID = std::array<std::uint8_t, 16>;

/// The running process. False for a null pointer.
[[nodiscard]] bool cpprocess_id(ProcessSerialNumber* id);

/// A new random identifier (version 4). False for a null pointer.
[[nodiscard]] bool cpprocess_uuid(CPUUID* uuid);

/// Writes the 36 characters 8-4-4-4-12, upper-case hexadecimal with hyphens, and a NUL. False for a
/// null buffer or one of fewer than 37 bytes, which is then left as it was.
[[nodiscard]] bool cpprocess_uuid_to_string(CPUUID uuid, char* buffer, std::int32_t size);

/// Reads the text form, in either case of letters. False for a null pointer or a text that is not
/// exactly one identifier; the output is then left as it was.
[[nodiscard]] bool cpprocess_uuid_from_string(const char* text, CPUUID* uuid);

/// True exactly when both are the same in all 16 bytes.
[[nodiscard]] bool cpprocess_uuid_compare(CPUUID first, CPUUID second);

} // namespace Corvaldine::CP
