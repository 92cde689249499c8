// Blocks from anywhere: whatever the bytes, a block is refused or makes a file of exactly the size
// that was asked for, and no old byte is read that is not there.
//
// An input is a method (one byte), the new size (two bytes) and how long the old file is (two),
// then the old file and the block.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "patcher/format/Block.h"

namespace {

class Region : public patch::Source {
  public:
    explicit Region(patch::View bytes) : m_bytes(bytes) {}
    std::uint64_t size() const override { return m_bytes.size(); }
    void read(std::uint64_t offset, std::span<std::byte> into) const override {
        // Nobody may ask for more than `size` says.
        if (offset > m_bytes.size() || into.size() > m_bytes.size() - offset)
            std::abort();
        std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(offset), into.size(),
                    into.begin());
    }

  private:
    patch::View m_bytes;
};

class Counter : public patch::Sink {
  public:
    void write(patch::View bytes) override { made += bytes.size(); }
    std::uint64_t made = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kHead = 5;
    if (size < kHead)
        return 0;
    const auto method = static_cast<patch::Method>(data[0] % 5);
    const std::uint64_t wanted = data[1] | data[2] << 8;
    const patch::View rest = std::as_bytes(std::span(data, size)).subspan(kHead);
    const std::size_t oldSize =
        std::min<std::size_t>(rest.size(), static_cast<std::size_t>(data[3] | data[4] << 8));
    const Region old(rest.first(oldSize));
    const Region block(rest.subspan(oldSize));
    Counter counter;
    try {
        patch::makeContent(method, {.patch = block, .offset = 0, .length = block.size()}, old,
                           wanted, counter);
        if (counter.made != wanted)
            std::abort();
    } catch (const patch::FormatError&) {
        if (counter.made > wanted)
            std::abort();
    }
    return 0;
}
