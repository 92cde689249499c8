# Writes OUTPUT, a header with the keys of CATALOGUE (scrivel_en.ts), sorted by their bytes, so that
# the compiler can look a text up.
#   cmake -DCATALOGUE=… -DOUTPUT=… -P TextKeys.cmake
file(READ "${CATALOGUE}" catalogue)

# What means something in a list of CMake's stands as a control character while lists are in use.
string(ASCII 1 semicolon)
string(ASCII 2 opening)
string(ASCII 3 closing)
string(ASCII 4 backslash)
string(REPLACE ";" "${semicolon}" catalogue "${catalogue}")
string(REPLACE "[" "${opening}" catalogue "${catalogue}")
string(REPLACE "]" "${closing}" catalogue "${catalogue}")
string(REPLACE "\\" "${backslash}" catalogue "${catalogue}")
string(REGEX MATCHALL "<source>[^<]*</source>" sources "${catalogue}")

# Each key as its bytes in hexadecimal digits, which sort as the bytes do, and as C++ has it. (The
# blank between them sorts before every digit.)
set(rows "")
foreach(source IN LISTS sources)
    string(REGEX REPLACE "^<source>(.*)</source>$" "\\1" key "${source}")
    string(REPLACE "&lt${semicolon}" "<" key "${key}")
    string(REPLACE "&gt${semicolon}" ">" key "${key}")
    string(REPLACE "&quot${semicolon}" "\"" key "${key}")
    string(REPLACE "&apos${semicolon}" "'" key "${key}")
    string(REPLACE "&#10${semicolon}" "\n" key "${key}")
    string(REPLACE "&#xa${semicolon}" "\n" key "${key}")
    if(key MATCHES "&[a-z0-9#]+${semicolon}" AND NOT CMAKE_MATCH_0 STREQUAL "&amp${semicolon}")
        message(FATAL_ERROR "${CATALOGUE}: no such character reference here: ${source}")
    endif()
    string(REPLACE "&amp${semicolon}" "&" key "${key}")

    string(REPLACE "${semicolon}" ";" bytes "${key}")
    string(REPLACE "${opening}" "[" bytes "${bytes}")
    string(REPLACE "${closing}" "]" bytes "${bytes}")
    string(REPLACE "${backslash}" "\\" bytes "${bytes}")
    string(HEX "${bytes}" bytes)

    string(REPLACE "${backslash}" "${backslash}${backslash}" key "${key}")
    string(REPLACE "\"" "${backslash}\"" key "${key}")
    string(REPLACE "\n" "${backslash}n" key "${key}")
    string(REPLACE "\t" "${backslash}t" key "${key}")
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
string(REPLACE "${semicolon}" ";" keys "${keys}")
string(REPLACE "${opening}" "[" keys "${keys}")
string(REPLACE "${closing}" "]" keys "${keys}")
string(REPLACE "${backslash}" "\\" keys "${keys}")
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
