# Writes OUTPUT, a header with every title that the interface files in FOLDER give their outlets, so
# that a front end without a window starts with the same titles as the window.
#   cmake -DFOLDER=… -DOUTPUT=… -P InterfaceDefaults.cmake

include("${CMAKE_CURRENT_LIST_DIR}/XmlText.cmake")

file(GLOB files "${FOLDER}/*.ui")
set(rows "")
set(count 0)
foreach(file IN LISTS files)
    get_filename_component(interface "${file}" NAME_WE)
    file(READ "${file}" text)
    xml_protect(text)
    # One list element an object, from its opening tag to the next one's.
    string(REPLACE "<widget " ";<widget " objects "${text}")
    string(REPLACE "<action " ";<action " objects "${objects}")
    foreach(object IN LISTS objects)
        if(object MATCHES "^<widget class=\"[A-Za-z0-9_:]+\" name=\"([A-Za-z0-9_]+)\"")
            set(outlet "${CMAKE_MATCH_1}")
            if(object MATCHES "<property name=\"text\">[ \n\t]*<string[^>/]*>([^<]*)</string>")
                set(title "${CMAKE_MATCH_1}")
                xml_unescape(title)
                xml_restore(title)
                string(APPEND rows
                       "    InterfaceTitle{\"${interface}\", \"${outlet}\", R\"title(${title})title\"},\n")
                math(EXPR count "${count} + 1")
            endif()
        endif()
    endforeach()
endforeach()
file(WRITE "${OUTPUT}" "// Made by the build from the interface files.
#pragma once

#include <array>
#include <string_view>

namespace app {

struct InterfaceTitle {
    std::string_view interface, outlet, title;
};

inline constexpr std::array<InterfaceTitle, ${count}> kInterfaceTitles{{
${rows}}};

} // namespace app
")
