# One static library for each folder below src/. FOLDER is its path below src/; the further
# arguments are the folders that it may include, by the same paths.
function(ostrel_floor FOLDER)
  string(REPLACE "/" "_" name ${FOLDER})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${FOLDER}/*.cpp)
  add_library(ostrel_${name} STATIC ${sources})
  set_target_properties(ostrel_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(ostrel_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  foreach(below ${ARGN})
    string(REPLACE "/" "_" below ${below})
    target_link_libraries(ostrel_${name} PUBLIC ostrel_${below})
  endforeach()
endfunction()
