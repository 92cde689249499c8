// A file of the patch format that lies in memory, to read from and to write to.
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "patcher/format/Bytes.h"

namespace patch {

class MemoryFile : public Source, public Sink {
  public:
    MemoryFile() = default;
    explicit MemoryFile(Bytes content) : bytes(std::move(content)) {}

    std::uint64_t size() const override { return bytes.size(); }
    void read(std::uint64_t offset, std::span<std::byte> into) const override {
        if (offset > bytes.size() || into.size() > bytes.size() - offset)
            throw FormatError("The file ends too early.");
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), into.size(), into.begin());
    }
    void write(View more) override { std::ranges::copy(more, std::back_inserter(bytes)); }

    Bytes bytes;
};

inline Bytes bytesOf(std::string_view text) {
    const View view = std::as_bytes(std::span(text.data(), text.size()));
    return {view.begin(), view.end()};
}

} // namespace patch
