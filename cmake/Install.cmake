# What an installation holds, and the packages: for Debian, or for Windows.
include(GNUInstallDirs)

install(TARGETS ostrelctl ostrel-sim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_SOURCE_DIR}/data/Lang.txt
        DESTINATION ${CMAKE_INSTALL_DATADIR}/ostrel-configurator)
if(NOT WIN32)
  install(FILES ${CMAKE_SOURCE_DIR}/docs/man/ostrelctl.1 ${CMAKE_SOURCE_DIR}/docs/man/ostrel-sim.1
          DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${CMAKE_SOURCE_DIR}/data/completion/ostrelctl
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()

set(CPACK_PACKAGE_NAME ostrel-configurator)
set(CPACK_PACKAGE_VENDOR Quorvane)
set(CPACK_PACKAGE_CONTACT "Quorvane <support@quorvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
if(WIN32)
  include(cmake/WindowsPackage.cmake)
  return()
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What draws on a display, and without one, and what keeps the ledger; libraries do not require
# them by themselves.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6sql6-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
include(CPack)
