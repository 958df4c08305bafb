# GoogleTest, built from Debian's source package in the same way for every target system.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
target_compile_options(gtest PRIVATE -O0)

# calctol_cheap_test_code(TARGET [REUSE_FROM TARGET | HEADER...])
#
# Most of the work on a test's source is to read GoogleTest and the framework: HEADERs are read once, unless a compiler
# cache does even better. Nor does test code run long enough to be worth optimising; what it tests is optimised as ever.
function(calctol_cheap_test_code target)
    target_compile_options(${target} PRIVATE -O0)
    if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
        if(ARGV1 STREQUAL REUSE_FROM)
            target_precompile_headers(${target} ${ARGN})
        else()
            target_precompile_headers(${target} PRIVATE ${ARGN})
        endif()
    endif()
endfunction()

# calctol_use_display(TEST [SECOND])
#
# Tests with windows run one at a time on a display: a window that is activated takes the input focus also from a program
# on another desktop. ./test has two displays and shares the tests out, see run-wine.sh; elsewhere they run one by one.
function(calctol_use_display test)
    if(ARGV1 STREQUAL SECOND)
        set_tests_properties(${test} PROPERTIES RESOURCE_LOCK second_display ENVIRONMENT CALCTOL_DISPLAY=second)
    else()
        set_tests_properties(${test} PROPERTIES RESOURCE_LOCK display)
    endif()
endfunction()

# calctol_add_test(NAME SOURCES... [LIBRARIES ...] [WINDOWED [SECOND_DISPLAY]])
#
# One test program, entered into CTest as one test: the tests inside run in a shuffled order whose seed is printed.
# WINDOWED programs get tests/support/windowed_main.cpp (private desktop, no unexpected message boxes) as their main.
function(calctol_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOWED;SECOND_DISPLAY" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE calctol_options ${arg_LIBRARIES})
    if(WIN32)
        set_target_properties(${name} PROPERTIES UNITY_BUILD_BATCH_SIZE 4) # the linker is slow with large objects
    endif()
    if(arg_WINDOWED)
        set(main windowed_test_main)
    else()
        set(main native_test_main)
    endif()
    target_link_libraries(${name} PRIVATE ${main})
    calctol_cheap_test_code(${name} REUSE_FROM ${main})
    add_test(NAME ${name} COMMAND ${name} --gtest_shuffle --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
    if(arg_SECOND_DISPLAY)
        calctol_use_display(${name} SECOND)
    elseif(arg_WINDOWED)
        calctol_use_display(${name})
    endif()
endfunction()
