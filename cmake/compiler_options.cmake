# Compiler settings of our own code. Every target of ours links calctol_options.
add_library(calctol_options INTERFACE)
target_include_directories(calctol_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(calctol_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)

if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12, optimising, reports overlapping copies inside std::string's own operator+ that can't happen.
    target_compile_options(calctol_options INTERFACE -Wno-restrict)
endif()

option(CALCTOL_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
if(CALCTOL_SANITIZE)
    target_compile_options(calctol_options INTERFACE -fsanitize=address,undefined,float-cast-overflow
                                                     -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(calctol_options INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
    target_compile_definitions(calctol_options INTERFACE UNICODE _UNICODE NOMINMAX WINVER=0x0A00 _WIN32_WINNT=0x0A00
                                                         _WIN32_IE=0x0A00)
    # The C++ run-time beside the programs: exceptions and delete cross the libraries, so all share one.
    foreach(runtime libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
                        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        configure_file(${path} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${runtime} COPYONLY)
    endforeach()
endif()
