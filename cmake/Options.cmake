# Language, warnings, sanitizers and the compiler cache, the same for every target of ours.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(QUEUESHIFT_TESTS "Build the tests" ON)
option(QUEUESHIFT_SANITIZE "AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()
# Where we develop and test, assertions hold; only the Release that is shipped goes without.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g")
set(CMAKE_C_FLAGS_RELWITHDEBINFO "-O2 -g")

find_program(QUEUESHIFT_CCACHE ccache)
mark_as_advanced(QUEUESHIFT_CCACHE)
if(QUEUESHIFT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these two the cache passes over every source that uses a precompiled header.
    set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
        ${QUEUESHIFT_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()

add_library(qs_options INTERFACE)
target_include_directories(qs_options INTERFACE
    "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/generated")
target_compile_options(qs_options INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    # A member that {.name = value} leaves out has its default, and that is meant.
    -Wno-missing-field-initializers
    -Wshadow -Wconversion -Wformat=2 -Wnon-virtual-dtor -Wextra-semi -Wcast-qual -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -fpch-preprocess>)

if(QUEUESHIFT_SANITIZE)
    # For every target, those of the test framework included: one program, one runtime.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
    target_compile_definitions(qs_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0A00 _WIN32_WINNT=0x0A00)
    # Enough for Wine to name our functions when a test crashes (it reads DWARF up to 4); the
    # program itself is linked stripped.
    set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1 -gdwarf-4 -DNDEBUG")
    set(CMAKE_C_FLAGS_RELEASE "-O2 -g1 -gdwarf-4 -DNDEBUG")
    add_link_options(-static)
    set(QUEUESHIFT_SYSTEM windows)
else()
    set(QUEUESHIFT_SYSTEM linux)
endif()
