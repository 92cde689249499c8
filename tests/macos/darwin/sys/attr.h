#pragma once
#include <cstdint>
#define ATTR_BIT_MAP_COUNT 5
#define ATTR_VOL_NAME 0x00002000
#define ATTR_VOL_INFO 0x80000000
struct attrlist {
    unsigned short bitmapcount;
    std::uint16_t reserved;
    std::uint32_t commonattr;
    std::uint32_t volattr;
    std::uint32_t dirattr;
    std::uint32_t fileattr;
    std::uint32_t forkattr;
};
struct attrreference_t {
    std::int32_t attr_dataoffset;
    std::uint32_t attr_length;
};
