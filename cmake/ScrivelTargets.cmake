# Helpers for the folders' CMakeLists, so that each reads as a list of files.
#
#   scrivel_library(NAME FILES... [LINKS ...])       a static library of one room
#   scrivel_test(NAME FILES... [LINKS ...])          a GoogleTest program, each test known to CTest
#   scrivel_fuzz(NAME FILE [LINKS ...])              a fuzz target (see fuzz/README.md)
#   scrivel_bench(NAME FILES... [LINKS ...])         a Google Benchmark program
#
# Every include is written from the project's root ("engine/Status.h").

function(scrivel_library name)
    cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_UNPARSED_ARGUMENTS})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_LINKS})
    if(COMMAND scrivel_use_precompiled)
        scrivel_use_precompiled(${name})
    endif()
endfunction()

function(scrivel_test name)
    if(NOT SCRIVEL_TESTS)
        return()
    endif()
    cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
    if(CMAKE_CROSSCOMPILING) # what can't run here is compiled at most
        add_library(${name} OBJECT ${arg_UNPARSED_ARGUMENTS})
    else()
        add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    endif()
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest_main GTest::gmock)
    # Not where declarations of ours stand in for those of the system's headers.
    if(TARGET scrivel_tests_precompiled AND NOT name MATCHES "^macos")
        target_precompile_headers(${name} REUSE_FROM scrivel_tests_precompiled)
    endif()
    if(NOT CMAKE_CROSSCOMPILING)
        gtest_discover_tests(${name} PROPERTIES TIMEOUT 120 DISCOVERY_TIMEOUT 60)
    endif()
endfunction()

function(scrivel_bench name)
    if(NOT SCRIVEL_BENCH)
        return()
    endif()
    cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${arg_LINKS} benchmark::benchmark_main)
endfunction()

# A fuzz target defines LLVMFuzzerTestOneInput. With SCRIVEL_FUZZ it is linked with libFuzzer for
# long runs; otherwise with fuzz/SliceMain.cpp, which replays the seeds in fuzz/seeds/NAME and a
# fixed number of mutations of them, so that every test run takes a slice of each target.
function(scrivel_fuzz name file)
    cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
    if(NOT SCRIVEL_FUZZ AND NOT SCRIVEL_TESTS)
        return()
    endif()
    add_executable(${name} ${file})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${arg_LINKS})
    if(SCRIVEL_FUZZ)
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    else()
        target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/fuzz/SliceMain.cpp")
        add_test(NAME fuzz_slice.${name}
                 COMMAND ${name} "${PROJECT_SOURCE_DIR}/fuzz/seeds/${name}")
        set_tests_properties(fuzz_slice.${name} PROPERTIES TIMEOUT 120)
    endif()
endfunction()
