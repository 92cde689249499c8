// Are these bytes a compiled translation that the toolkit's reader can be trusted with? It believes
// every length that it finds in the file, so that a damaged one would have it read past the end; it
// is only given files that have passed here. A pure function, on any thread.
#pragma once

#include <string_view>

namespace ui {

/// Is it a file as the toolkit's compiler writes them ("lrelease", with texts in UTF-8 or Latin-1),
/// and do all of its tables and messages lie where they are said to? Files that depend on others
/// are refused, and so are tables of contexts, which the compiler has not written for long.
bool isTranslationFile(std::string_view bytes);

} // namespace ui
