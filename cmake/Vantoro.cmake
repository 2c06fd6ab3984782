# How every target of this project is compiled, and the functions that make one library, one test
# program, one benchmark or one fuzz target out of a folder.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(VANTORO_CCACHE ccache)
if(VANTORO_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VANTORO_CCACHE}")
endif()

# Flags that change how records lie in memory must be the same in every library; inside the real
# host's tool chain they come from here too.
add_library(HostAbi INTERFACE)

# Pango's flags hold -pthread; a precompiled header fits only where all share it.
if(UNIX)
    add_compile_options(-pthread)
endif()

add_library(VantoroFlags INTERFACE)
target_compile_options(VantoroFlags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 sees an overlapping copy in `"literal" + std::string` (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(VantoroFlags INTERFACE -Wno-restrict)
endif()
if(VANTORO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(VANTORO_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# The sources of a folder (not of its subfolders), without those of another operating system.
function(vantoro_sources result folder)
    file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp")
    if(WIN32)
        list(FILTER sources EXCLUDE REGEX "Posix\\.cpp$")
    else()
        list(FILTER sources EXCLUDE REGEX "Windows\\.cpp$")
    endif()
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

# Test code runs once: compiling it is what costs, so it is optimised a little only, and not at all
# under the sanitizers, where that halves the time. All test programs and the header that they share
# must agree on this.
add_library(TestFlags INTERFACE)
target_link_libraries(TestFlags INTERFACE VantoroFlags)
target_compile_options(TestFlags INTERFACE $<$<CONFIG:Release>:-O1>)
if(VANTORO_SANITIZE)
    target_compile_options(TestFlags INTERFACE -O0)
endif()
# In a unit GCC takes each source for a header, and warns of fixtures that only that source knows.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(TestFlags INTERFACE -Wno-subobject-linkage)
endif()

# The standard containers are compiled once for all libraries, and several sources as one unit, but
# only under the sanitizers: the other builds see to it that each source includes what it uses.
if(VANTORO_SANITIZE)
    add_library(StandardHeaders STATIC "${PROJECT_SOURCE_DIR}/cmake/StandardHeaders.cpp")
    target_link_libraries(StandardHeaders PRIVATE VantoroFlags)
    target_precompile_headers(StandardHeaders PRIVATE
        <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <filesystem> <functional> <limits>
        <map> <memory> <numeric> <optional> <set> <span> <string> <string_view> <utility> <variant>
        <vector>)
endif()

find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Compiles sources of a target in units of several: templates are then made once for each unit,
# which halves the time. Two that give one name to things of their own part.
function(vantoro_units target)
    get_target_property(sources ${target} SOURCES)
    execute_process(
        COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/scripts/units.py" 8 ${sources}
        OUTPUT_VARIABLE units COMMAND_ERROR_IS_FATAL ANY)
    foreach(source unit IN ZIP_LISTS sources units)
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${unit}")
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# What is compiled once more under the sanitizers shares headers and units there.
function(vantoro_save_time target)
    if(VANTORO_SANITIZE)
        target_precompile_headers(${target} REUSE_FROM StandardHeaders)
        vantoro_units(${target})
    endif()
endfunction()

# vantoro_library(NAME library...): the static library of the current folder, or an interface
# library where the folder holds headers only. What it links is what it may include.
function(vantoro_library name)
    vantoro_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    if(sources)
        add_library(${name} STATIC ${sources})
        target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
        target_link_libraries(${name} PUBLIC HostAbi ${ARGN} PRIVATE VantoroFlags)
        vantoro_save_time(${name})
    else()
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE "${PROJECT_SOURCE_DIR}/src")
        target_link_libraries(${name} INTERFACE HostAbi ${ARGN})
    endif()
endfunction()

# vantoro_test(NAME library...): one test program of the current folder, run as one test so that
# its fixtures are shared.
function(vantoro_test name)
    vantoro_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE ${ARGN} TestSupport GTest::gtest_main TestFlags)
    target_precompile_headers(${name} REUSE_FROM TestHeaders)
    vantoro_units(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1800)
endfunction()
