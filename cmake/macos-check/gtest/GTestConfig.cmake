# Stands in for GoogleTest's package in the check for macOS: Debian's headers, so that the tests can be
# compiled. There is nothing to link them with.
foreach(part IN ITEMS gtest gtest_main gmock gmock_main)
    if(NOT TARGET GTest::${part})
        add_library(GTest::${part} INTERFACE IMPORTED)
        set_target_properties(GTest::${part} PROPERTIES
            INTERFACE_INCLUDE_DIRECTORIES "${MACOS_CHECK_SYSTEM}/packages/include")
    endif()
endforeach()
