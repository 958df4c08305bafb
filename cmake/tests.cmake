# GoogleTest, built from Debian's source package in the same way for every target system.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# calctol_add_test(NAME SOURCES... [LIBRARIES ...] [WINDOWED])
#
# One test program, entered into CTest as one test: the tests inside run in a shuffled order whose seed is printed.
# WINDOWED programs get tests/support/windowed_main.cpp (private desktop, no unexpected message boxes) as their main. They
# run one at a time: a window that is activated takes the display's input focus also from a program on another desktop.
function(calctol_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOWED" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE calctol_options ${arg_LIBRARIES})
    if(arg_WINDOWED)
        target_link_libraries(${name} PRIVATE windowed_test_main)
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
    endif()
    add_test(NAME ${name} COMMAND ${name} --gtest_shuffle --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
    if(arg_WINDOWED)
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK display)
    endif()
endfunction()
