# The window: what it links, its program and what it brings to an installation.
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport DBus)
find_package(QCustomPlotQt6 REQUIRED)
target_link_libraries(ostrel_desktop PUBLIC Qt6::Widgets Qt6::PrintSupport
                                            QCustomPlotQt6::QCustomPlotQt6 PRIVATE Qt6::DBus)

add_executable(ostrel-configurator src/desktop/main/OstrelConfigurator.cpp)
target_link_libraries(ostrel-configurator PRIVATE ostrel_desktop)
target_precompile_headers(ostrel-configurator REUSE_FROM ostrel_std_headers)
target_compile_definitions(ostrel-configurator PRIVATE OSTREL_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
add_dependencies(ostrel-configurator ostrel_lang_copy)

install(TARGETS ostrel-configurator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/ostrel-configurator.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/ostrel-configurator.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${CMAKE_SOURCE_DIR}/data/icons/ostrel-configurator.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${CMAKE_SOURCE_DIR}/docs/man/ostrel-configurator.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
