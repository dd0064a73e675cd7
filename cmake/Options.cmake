# Compiler settings that hold for the whole tree.
include(CMakeDependentOption)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(OSTREL_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(OSTREL_PROGRAMS "Build the programs; without them the core and its tests" ON)
cmake_dependent_option(OSTREL_DESKTOP "Build the window" ON OSTREL_PROGRAMS OFF)
option(OSTREL_BENCH "Build the benchmarks" ON)
option(OSTREL_WERROR "Treat warnings as errors" ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                    -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-restrict)  # false alarms on joined strings
endif()
if(OSTREL_WERROR)
  add_compile_options(-Werror)
endif()
if(OSTREL_SANITIZE)
  add_compile_options(-Wno-maybe-uninitialized)  # false alarms on the library's own moves
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
