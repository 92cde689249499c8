# Compiles and links for macOS with clang 19 and lld 19 on Linux, both architectures in one go, as
# Apple's clang does. Used by the preset macos-check. What it needs it puts together itself, in the
# folder "system" of the build (see prepare beside this file).
#
# It proves that the sources compile against the declarations that it has and link with the names
# that it knows. Nothing that it makes is shipped, and nothing of it was ever run.

if(NOT MACOS_CHECK_SYSTEM)
    set(MACOS_CHECK_SYSTEM "${CMAKE_BINARY_DIR}/system")
    execute_process(COMMAND "${CMAKE_CURRENT_LIST_DIR}/prepare" "${MACOS_CHECK_SYSTEM}"
                    RESULT_VARIABLE prepared)
    if(NOT prepared EQUAL 0)
        message(FATAL_ERROR "The headers for the macOS check could not be put together; "
                            "tools/macos_check installs what that needs.")
    endif()
endif()
# The projects that CMake compiles to try things out have build folders of their own.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MACOS_CHECK_SYSTEM)

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 21.0) # macOS 12
set(CMAKE_OSX_SYSROOT "${MACOS_CHECK_SYSTEM}/MacOSX14.0.sdk")
set(CMAKE_OSX_ARCHITECTURES "x86_64;arm64" CACHE STRING "")
set(CMAKE_OSX_DEPLOYMENT_TARGET 12.0 CACHE STRING "")
set(ENV{PATH} "${MACOS_CHECK_SYSTEM}/bin:$ENV{PATH}")

set(tools "-B\"${MACOS_CHECK_SYSTEM}/bin\"")
set(library "-nostdinc++ -isystem \"${CMAKE_OSX_SYSROOT}/usr/include/c++/v1\"")
foreach(language IN ITEMS C OBJC)
    set(CMAKE_${language}_COMPILER /usr/bin/clang-19)
    set(CMAKE_${language}_FLAGS_INIT "${tools}")
endforeach()
foreach(language IN ITEMS CXX OBJCXX)
    set(CMAKE_${language}_COMPILER /usr/bin/clang++-19)
    set(CMAKE_${language}_FLAGS_INIT "${tools} ${library}")
endforeach()
foreach(language IN ITEMS C CXX OBJC OBJCXX)
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos)
    # ar's archives can't hold universal objects in a way that the linker reads.
    set(CMAKE_${language}_ARCHIVE_CREATE
        "/usr/bin/llvm-libtool-darwin-19 -static -no_warning_for_no_symbols -o <TARGET> <OBJECTS>")
    set(CMAKE_${language}_ARCHIVE_APPEND
        "/usr/bin/llvm-libtool-darwin-19 -static -o <TARGET> <TARGET> <OBJECTS>")
    set(CMAKE_${language}_ARCHIVE_FINISH "")
endforeach()
foreach(kind IN ITEMS EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-adhoc_codesign")
endforeach()
set(CMAKE_AR /usr/bin/llvm-ar-19)
set(CMAKE_RANLIB /usr/bin/llvm-ranlib-19)
set(CMAKE_STRIP /usr/bin/llvm-strip-19)
set(CMAKE_INSTALL_NAME_TOOL /usr/bin/llvm-install-name-tool-19)
set(CMAKE_OTOOL /usr/bin/llvm-otool-19)

# Libraries from the prepared folders alone; Debian's own are for another system.
set(CMAKE_FIND_ROOT_PATH "${MACOS_CHECK_SYSTEM}/packages" "${CMAKE_OSX_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_PREFIX_PATH "${MACOS_CHECK_SYSTEM}/packages")
set(ENV{PKG_CONFIG_LIBDIR} "${MACOS_CHECK_SYSTEM}/packages/lib/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "")
# What stands in for packages that can't be had here.
set(Qt6_DIR "${CMAKE_CURRENT_LIST_DIR}/qt6" CACHE PATH "")
set(GTest_DIR "${CMAKE_CURRENT_LIST_DIR}/gtest" CACHE PATH "")
