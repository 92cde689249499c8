# Writes OUTPUT, a header with the keys of CATALOGUE (scrivel_en.ts), sorted by their bytes, so that
# the compiler can look a text up.
#   cmake -DCATALOGUE=… -DOUTPUT=… -P TextKeys.cmake
include("${CMAKE_CURRENT_LIST_DIR}/XmlText.cmake")

file(READ "${CATALOGUE}" catalogue)

xml_protect(catalogue)
string(REGEX MATCHALL "<source>[^<]*</source>" sources "${catalogue}")

# Each key as its bytes in hexadecimal digits, which sort as the bytes do, and as C++ has it. (The
# blank between them sorts before every digit.)
set(rows "")
foreach(source IN LISTS sources)
    string(REGEX REPLACE "^<source>(.*)</source>$" "\\1" key "${source}")
    xml_unescape(key)
    set(bytes "${key}")
    xml_restore(bytes)
    string(HEX "${bytes}" bytes)

    string(REPLACE "${xml_backslash}" "${xml_backslash}${xml_backslash}" key "${key}")
    string(REPLACE "\"" "${xml_backslash}\"" key "${key}")
    string(REPLACE "\n" "${xml_backslash}n" key "${key}")
    string(REPLACE "\t" "${xml_backslash}t" key "${key}")
    list(APPEND rows "${bytes} ${key}")
endforeach()
list(LENGTH rows count)
list(SORT rows)
set(unique "${rows}")
list(REMOVE_DUPLICATES unique)
list(LENGTH unique unique_count)
if(count EQUAL 0 OR NOT count EQUAL unique_count)
    message(FATAL_ERROR "${CATALOGUE}: it has no text, or one of its texts twice")
endif()

list(TRANSFORM rows REPLACE "^[0-9a-f]+ (.*)$" "    \"\\1\",")
list(JOIN rows "\n" keys)
xml_restore(keys)
file(WRITE "${OUTPUT}" "// Made by the build from the catalogue of texts.
#pragma once

#include <string_view>

namespace ports {

/// Every user-visible text in English, sorted by its bytes.
inline constexpr std::string_view kTextKeys[] = {
${keys}
};

} // namespace ports
")
