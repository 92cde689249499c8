# Programs of ours that the build itself runs. Where it builds for another system than the one that
# it runs on, they come from a build for this one: from SCRIVEL_HOST_TOOLS, the folder of such a
# build, or else from one that is made for the purpose in "host" of the build folder.
#
#   scrivel_build_program(NAME)   ${NAME_COMMAND} starts the program, ${NAME_DEPENDS} makes it
set(SCRIVEL_HOST_TOOLS "" CACHE PATH
    "Build folder for this system whose programs a build for another one runs; empty: it makes one")

macro(scrivel_build_program name)
    if(CMAKE_CROSSCOMPILING)
        set(${name}_COMMAND "${SCRIVEL_HOST_FOLDER}/tools/${name}")
        set(${name}_DEPENDS scrivel_host_tools)
    else()
        set(${name}_COMMAND ${name})
        set(${name}_DEPENDS ${name})
    endif()
endmacro()

if(NOT CMAKE_CROSSCOMPILING)
    return()
endif()
if(SCRIVEL_HOST_TOOLS)
    set(SCRIVEL_HOST_FOLDER "${SCRIVEL_HOST_TOOLS}")
    add_custom_target(scrivel_host_tools)
else()
    include(ExternalProject)
    set(SCRIVEL_HOST_FOLDER "${CMAKE_BINARY_DIR}/host")
    set(programs makeArchive makePatch makeSampleProduct makeSampleComponents makeManual)
    if(SCRIVEL_UI)
        list(APPEND programs makeIcons)
    endif()
    # Without this build's settings for the other system.
    ExternalProject_Add(scrivel_host_tools
        SOURCE_DIR "${PROJECT_SOURCE_DIR}" BINARY_DIR "${SCRIVEL_HOST_FOLDER}"
        PREFIX "${CMAKE_BINARY_DIR}/host-steps"
        CONFIGURE_COMMAND "${CMAKE_COMMAND}" -E env --unset=PKG_CONFIG_LIBDIR --unset=PKG_CONFIG_PATH
            "${CMAKE_COMMAND}" -S <SOURCE_DIR> -B <BINARY_DIR> -G Ninja -DCMAKE_BUILD_TYPE=Release
            -DSCRIVEL_TESTS=OFF -DSCRIVEL_UI=${SCRIVEL_UI}
        BUILD_COMMAND "${CMAKE_COMMAND}" --build <BINARY_DIR> --target ${programs}
        INSTALL_COMMAND "" BUILD_ALWAYS ON USES_TERMINAL_BUILD ON)
endif()
