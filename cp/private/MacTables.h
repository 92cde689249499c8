// The characters of the two Mac encodings that the library offers, as published by the Unicode
// consortium in https://www.unicode.org/Public/MAPPINGS/VENDORS/APPLE/ : ROMAN.TXT (c02) and
// SYMBOL.TXT (c02). The control characters, which those files leave out, stand for themselves.
#pragma once

#include "cp/private/SingleByteTable.h"

namespace Corvaldine::CP::Private {

extern const SingleByteTable::Characters kMacRomanCharacters;

/// 0xE2, 0xE3 and 0xE4, the sans-serif forms of the registered, copyright and trade mark signs, are
/// written with the variant tag.
extern const SingleByteTable::Characters kMacSymbolCharacters;

} // namespace Corvaldine::CP::Private
