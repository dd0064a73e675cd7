# What a build for Windows needs beside the toolkit. Of libraries that are headers alone, or sources
# that no package holds for this system, the folder of the toolkit holds copies.
enable_language(RC)
add_compile_definitions(NOMINMAX UNICODE _UNICODE)

find_path(OSTREL_HEADERS CLI/CLI.hpp REQUIRED DOC "Folder of the headers of CLI11 and nlohmann_json")
foreach(library CLI11::CLI11 nlohmann_json::nlohmann_json)
  add_library(${library} INTERFACE IMPORTED)
  target_include_directories(${library} SYSTEM INTERFACE ${OSTREL_HEADERS})
endforeach()

# The library of the plots, from its sources.
function(ostrel_chart)
  add_library(ostrel_chart STATIC ${OSTREL_HEADERS}/qcustomplot.cpp ${OSTREL_HEADERS}/qcustomplot.h)
  set_target_properties(ostrel_chart PROPERTIES AUTOMOC ON UNITY_BUILD OFF)
  target_compile_options(ostrel_chart PRIVATE -w)
  target_include_directories(ostrel_chart SYSTEM PUBLIC ${OSTREL_HEADERS})
  target_link_libraries(ostrel_chart PUBLIC Qt6::Widgets Qt6::PrintSupport)
  add_library(QCustomPlotQt6::QCustomPlotQt6 ALIAS ostrel_chart)
endfunction()

# Gives a program its version, its manifest and, where it has one, its icon.
function(ostrel_resources PROGRAM WORDS ICON)
  set(resources ${CMAKE_BINARY_DIR}/${PROGRAM}.rc)
  set(folder ${CMAKE_SOURCE_DIR}/data/windows)
  configure_file(${folder}/program.rc.in ${resources} @ONLY)
  target_sources(${PROGRAM} PRIVATE ${resources})
  set_source_files_properties(${resources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON
                              OBJECT_DEPENDS ${folder}/program.manifest)
endfunction()
