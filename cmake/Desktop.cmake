# The window: what it links, its program and what it brings to an installation.
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport)
if(WIN32)
  ostrel_chart()
else()
  find_package(QCustomPlotQt6 REQUIRED)
endif()
target_link_libraries(ostrel_desktop PUBLIC Qt6::Widgets Qt6::PrintSupport
                                            QCustomPlotQt6::QCustomPlotQt6)

add_executable(ostrel-configurator src/desktop/main/OstrelConfigurator.cpp)
target_link_libraries(ostrel-configurator PRIVATE ostrel_desktop)
target_precompile_headers(ostrel-configurator REUSE_FROM ostrel_std_headers)
target_compile_definitions(ostrel-configurator PRIVATE OSTREL_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
add_dependencies(ostrel-configurator ostrel_lang_copy)

install(TARGETS ostrel-configurator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(WIN32)
  set_target_properties(ostrel-configurator PROPERTIES WIN32_EXECUTABLE ON)  # no console window
  ostrel_resources(ostrel-configurator "Configuration of telemetry loggers"
                   "1 ICON \"${CMAKE_SOURCE_DIR}/data/windows/ostrel-configurator.ico\"")
  qt_import_plugins(ostrel-configurator INCLUDE Qt6::QSQLiteDriverPlugin)
else()
  install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/ostrel-configurator.desktop
          DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/ostrel-configurator.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES ${CMAKE_SOURCE_DIR}/data/icons/ostrel-configurator.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${CMAKE_SOURCE_DIR}/docs/man/ostrel-configurator.1
          DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

# Help pages of our own, a page word each, in English and Spanish; pages that are supplied apart
# come ahead of them.
set(help_folder ${CMAKE_BINARY_DIR}/share/ostrel-configurator/help)
file(GLOB help_texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/help/en/*.md
                                       ${CMAKE_SOURCE_DIR}/docs/help/es/*.md)
set(help_pages)
foreach(text IN LISTS help_texts)
  cmake_path(GET text STEM word)
  cmake_path(GET text PARENT_PATH language)
  cmake_path(GET language FILENAME language)
  string(TOUPPER ${language} ending)
  set(page ${help_folder}/${word}_${ending}.htm)
  add_custom_command(OUTPUT ${page}
                     COMMAND ${CMAKE_COMMAND} -DTEXT=${text} -DPAGE=${page}
                             -P ${CMAKE_SOURCE_DIR}/cmake/HelpPage.cmake
                     DEPENDS ${text} ${CMAKE_SOURCE_DIR}/cmake/HelpPage.cmake VERBATIM)
  list(APPEND help_pages ${page})
endforeach()
add_custom_target(ostrel_help ALL DEPENDS ${help_pages})
add_dependencies(ostrel_desktop ostrel_help)
install(DIRECTORY ${help_folder} DESTINATION ${CMAKE_INSTALL_DATADIR}/ostrel-configurator)
