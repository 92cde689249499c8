# How every target is compiled: language, warnings, sanitizers, compiler cache.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(SCRIVEL_CCACHE ccache)
if(SCRIVEL_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${SCRIVEL_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                    -Wimplicit-fallthrough -Werror=reorder)
# On a Mac each new SDK deprecates calls that the older systems need; the check from Linux is strict.
if(NOT APPLE OR CMAKE_CROSSCOMPILING)
    add_compile_options(-Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict) # false alarms in std::string's own operator+
endif()
add_compile_definitions(_FILE_OFFSET_BITS=64)
if(NOT APPLE)
    add_compile_definitions(_GNU_SOURCE)
endif()
if(APPLE)
    enable_language(OBJCXX)
    add_compile_options($<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
    # Where the packaging puts the libraries, as seen from MacOS and Resources in the bundle.
    set(CMAKE_BUILD_RPATH "@executable_path/../Frameworks")
endif()
if(SCRIVEL_SANITIZE)
    add_compile_options(-fsanitize=${SCRIVEL_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer -g)
    add_link_options(-fsanitize=${SCRIVEL_SANITIZE})
endif()
