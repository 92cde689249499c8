// The platform's basic types, for the adapters' tests on another system; see CoreFoundation.h.
#pragma once
#include <cstddef>
#include <cstdint>
using UInt8 = std::uint8_t;
using UInt16 = std::uint16_t;
using UInt32 = std::uint32_t;
using SInt16 = std::int16_t;
using SInt32 = std::int32_t;
using Boolean = unsigned char;
using OSStatus = SInt32;
using OSErr = SInt16;
using OSType = UInt32;
using OptionBits = UInt32;
