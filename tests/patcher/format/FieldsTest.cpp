#include "patcher/format/Fields.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/patcher/format/MemoryFile.h"

namespace patch {
namespace {

TEST(Fields, NumbersComeBackAsTheyWere) {
    Bytes bytes;
    FieldWriter out(bytes);
    const std::vector<std::uint64_t> numbers{
        0, 1, 127, 128, 300, 1u << 21, std::numeric_limits<std::uint64_t>::max()};
    for (const std::uint64_t number : numbers)
        out.varint(number);
    const std::vector<std::int64_t> signedNumbers{0,
                                                  -1,
                                                  1,
                                                  -1000,
                                                  std::numeric_limits<std::int64_t>::min(),
                                                  std::numeric_limits<std::int64_t>::max()};
    for (const std::int64_t number : signedNumbers)
        out.signedVarint(number);
    FieldReader in(bytes);
    for (const std::uint64_t number : numbers)
        EXPECT_EQ(in.varint(), number);
    for (const std::int64_t number : signedNumbers)
        EXPECT_EQ(in.signedVarint(), number);
    EXPECT_EQ(in.left(), 0u);
}

TEST(Fields, SmallNumbersOfEitherSignTakeOneByte) {
    for (const std::int64_t number : {0, -1, 1, -64, 63}) {
        Bytes bytes;
        FieldWriter(bytes).signedVarint(number);
        EXPECT_EQ(bytes.size(), 1u) << number;
    }
}

TEST(Fields, ANumberOfMoreThan64BitsIsRefused) {
    Bytes bytes(9, std::byte{0xff});
    bytes.push_back(std::byte{2});
    EXPECT_THROW(FieldReader(bytes).varint(), FormatError);
    bytes.back() = std::byte{1};
    EXPECT_EQ(FieldReader(bytes).varint(), ~std::uint64_t{0});
    bytes.back() = std::byte{0x81};
    bytes.push_back(std::byte{0});
    EXPECT_THROW(FieldReader(bytes).varint(), FormatError);
}

TEST(Fields, ALengthBeyondWhatIsLeftIsRefused) {
    Bytes bytes;
    FieldWriter(bytes).text("four");
    EXPECT_EQ(FieldReader(bytes).text(), "four");
    bytes.pop_back();
    EXPECT_THROW(FieldReader(bytes).text(), FormatError);
    EXPECT_THROW(FieldReader(View{}).byte(), FormatError);
}

TEST(Fields, FixedNumbersAreLittleEndian) {
    std::array<std::byte, 4> bytes;
    writeLittle(bytes, 0x01020304);
    EXPECT_EQ(bytes[0], std::byte{4});
    EXPECT_EQ(bytes[3], std::byte{1});
    EXPECT_EQ(readLittle(bytes), 0x01020304u);
}

} // namespace
} // namespace patch
