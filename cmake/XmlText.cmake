# Texts of XML files in CMake, whose lists give some characters a meaning of their own. Those stand
# as control characters between xml_protect and xml_restore; xml_unescape works in between.

string(ASCII 1 xml_semicolon)
string(ASCII 2 xml_opening)
string(ASCII 3 xml_closing)
string(ASCII 4 xml_backslash)

# Puts the characters of the variable `name` aside.
macro(xml_protect name)
    string(REPLACE ";" "${xml_semicolon}" ${name} "${${name}}")
    string(REPLACE "[" "${xml_opening}" ${name} "${${name}}")
    string(REPLACE "]" "${xml_closing}" ${name} "${${name}}")
    string(REPLACE "\\" "${xml_backslash}" ${name} "${${name}}")
endmacro()

# And back.
macro(xml_restore name)
    string(REPLACE "${xml_semicolon}" ";" ${name} "${${name}}")
    string(REPLACE "${xml_opening}" "[" ${name} "${${name}}")
    string(REPLACE "${xml_closing}" "]" ${name} "${${name}}")
    string(REPLACE "${xml_backslash}" "\\" ${name} "${${name}}")
endmacro()

# Replaces the character references of the protected variable `name`; stops at one that our files
# don't use.
macro(xml_unescape name)
    string(REPLACE "&lt${xml_semicolon}" "<" ${name} "${${name}}")
    string(REPLACE "&gt${xml_semicolon}" ">" ${name} "${${name}}")
    string(REPLACE "&quot${xml_semicolon}" "\"" ${name} "${${name}}")
    string(REPLACE "&apos${xml_semicolon}" "'" ${name} "${${name}}")
    string(REPLACE "&#10${xml_semicolon}" "\n" ${name} "${${name}}")
    string(REPLACE "&#xa${xml_semicolon}" "\n" ${name} "${${name}}")
    if("${${name}}" MATCHES "&[a-zA-Z0-9#]+${xml_semicolon}" AND
       NOT CMAKE_MATCH_0 STREQUAL "&amp${xml_semicolon}")
        message(FATAL_ERROR "No such character reference here: ${${name}}")
    endif()
    string(REPLACE "&amp${xml_semicolon}" "&" ${name} "${${name}}")
endmacro()
