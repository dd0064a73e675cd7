# Headers that most sources include, parsed once for all targets instead of once in each. A target
# shares them by target_precompile_headers(TARGET REUSE_FROM ostrel_std_headers), a test program by
# REUSE_FROM ostrel_test_headers. Off by default: it hides a missing include, and compiler caches
# do not like it.
option(OSTREL_PRECOMPILE "Parse the headers that most sources include once" OFF)
if(OSTREL_PRECOMPILE)
  # As Qt asks of those who use it: one set of headers, one set of flags. For Windows code is always
  # so, and asked for it this compiler puts a constant into different sections in different places.
  if(WIN32)
    add_compile_definitions(MINGW_HAS_SECURE_API=1)
  else()
    add_compile_options(-fPIC)
  endif()
else()
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

set(std_headers <algorithm> <array> <charconv> <chrono> <cmath> <concepts> <cstdint> <deque>
                <functional> <iterator> <limits> <map> <memory> <optional> <set> <span> <sstream>
                <stdexcept> <string> <string_view> <unordered_map> <utility> <variant> <vector>)

# A target that only parses headers.
function(ostrel_precompiled NAME)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/${NAME}.cpp CONTENT "")
  add_library(${NAME} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/${NAME}.cpp)
  target_precompile_headers(${NAME} PRIVATE ${ARGN})
endfunction()

ostrel_precompiled(ostrel_std_headers ${std_headers})
