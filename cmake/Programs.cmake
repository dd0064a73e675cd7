# The three programs, and what stands beside them when they run.
add_executable(ostrelctl src/cli/main/Ostrelctl.cpp)
target_link_libraries(ostrelctl PRIVATE ostrel_cli)
add_executable(ostrel-sim src/simulator/main/OstrelSim.cpp)
target_link_libraries(ostrel-sim PRIVATE ostrel_simulator)
add_executable(ostrel-configurator src/desktop/main/OstrelConfigurator.cpp)
target_link_libraries(ostrel-configurator PRIVATE ostrel_desktop)
target_compile_definitions(ostrel-configurator PRIVATE OSTREL_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")

# The window's own words: English in the code, Spanish here.
qt_add_translations(ostrel_desktop
                    TS_FILES ${CMAKE_SOURCE_DIR}/src/desktop/words/ostrel-configurator_es.ts
                             ${CMAKE_SOURCE_DIR}/src/desktop/words/ostrel-configurator_en.ts
                    RESOURCE_PREFIX /i18n)

# The translation table stands where an installed program looks for it: beside the programs.
set(lang_copy ${CMAKE_BINARY_DIR}/share/ostrel-configurator/Lang.txt)
add_custom_command(OUTPUT ${lang_copy}
                   COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/data/Lang.txt ${lang_copy}
                   DEPENDS ${CMAKE_SOURCE_DIR}/data/Lang.txt VERBATIM)
add_custom_target(ostrel_lang_copy ALL DEPENDS ${lang_copy})
add_dependencies(ostrelctl ostrel_lang_copy)
add_dependencies(ostrel-configurator ostrel_lang_copy)
