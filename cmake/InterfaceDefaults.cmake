# Writes OUTPUT, a header with every title that the interface files in FOLDER give their outlets, so
# that a front end without a window starts with the same titles as the window.
#   cmake -DFOLDER=… -DOUTPUT=… -P InterfaceDefaults.cmake
file(GLOB files "${FOLDER}/*.ui")
set(rows "")
set(count 0)
foreach(file IN LISTS files)
    get_filename_component(interface "${file}" NAME_WE)
    file(READ "${file}" text)
    string(REPLACE ";" "," text "${text}")
    # One list element a widget, from its opening tag to the next one's.
    string(REPLACE "<widget " ";<widget " widgets "${text}")
    foreach(widget IN LISTS widgets)
        if(widget MATCHES "^<widget class=\"[A-Za-z]+\" name=\"([A-Za-z_]+)\"")
            set(outlet "${CMAKE_MATCH_1}")
            if(widget MATCHES "<property name=\"text\">[ \n\t]*<string>([^<]*)</string>")
                string(APPEND rows "    InterfaceTitle{\"${interface}\", \"${outlet}\", R\"(${CMAKE_MATCH_1})\"},\n")
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
