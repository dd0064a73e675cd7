# The programs of the command line, and what stands beside them when they run.
find_package(Qt6 REQUIRED COMPONENTS Core Gui LinguistTools Sql)
target_link_libraries(ostrel_platform_qt PUBLIC Qt6::Core PRIVATE Qt6::Sql)
if(WIN32)
  include(cmake/Windows.cmake)
  target_link_libraries(ostrel_platform_windows PRIVATE setupapi)
else()
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
  find_package(Qt6 REQUIRED COMPONENTS DBus SerialPort)
  target_link_libraries(ostrel_platform_posix PUBLIC Qt6::SerialPort PRIVATE Qt6::DBus)
endif()
target_link_libraries(ostrel_host PUBLIC Qt6::Gui)
target_link_libraries(ostrel_cli PUBLIC CLI11::CLI11 nlohmann_json::nlohmann_json)
target_link_libraries(ostrel_simulator PUBLIC CLI11::CLI11)
# The words of the window and of documents: English in the code, Spanish here.
qt_add_translations(ostrel_host
                    TS_FILES ${CMAKE_SOURCE_DIR}/src/desktop/words/ostrel-configurator_es.ts
                             ${CMAKE_SOURCE_DIR}/src/desktop/words/ostrel-configurator_en.ts
                    RESOURCE_PREFIX /i18n)

add_executable(ostrelctl src/cli/main/Ostrelctl.cpp)
target_link_libraries(ostrelctl PRIVATE ostrel_cli)
target_precompile_headers(ostrelctl REUSE_FROM ostrel_std_headers)
add_executable(ostrel-sim src/simulator/main/OstrelSim.cpp)
target_link_libraries(ostrel-sim PRIVATE ostrel_simulator)
target_precompile_headers(ostrel-sim REUSE_FROM ostrel_std_headers)

if(WIN32)
  ostrel_resources(ostrelctl "Command line of the Ostrel Configurator" "")
  ostrel_resources(ostrel-sim "Simulated logger" "")
  # What a program brings along of a toolkit that is no library of its own.
  qt_import_plugins(ostrelctl INCLUDE Qt6::QSQLiteDriverPlugin)
endif()

# The translation table stands where an installed program looks for it: beside the programs.
set(lang_copy ${CMAKE_BINARY_DIR}/share/ostrel-configurator/Lang.txt)
add_custom_command(OUTPUT ${lang_copy}
                   COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/data/Lang.txt ${lang_copy}
                   DEPENDS ${CMAKE_SOURCE_DIR}/data/Lang.txt VERBATIM)
add_custom_target(ostrel_lang_copy ALL DEPENDS ${lang_copy})
add_dependencies(ostrelctl ostrel_lang_copy)
