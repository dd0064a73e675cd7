# The installer for Windows, and the folder in a zip file that runs where it is unpacked.
set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Ostrel Configurator")
set(CPACK_PACKAGE_EXECUTABLES ostrel-configurator "Ostrel Configurator")  # in the start menu
set(CPACK_NSIS_PACKAGE_NAME "Ostrel Configurator")
set(CPACK_NSIS_DISPLAY_NAME "Ostrel Configurator ${PROJECT_VERSION}")
set(CPACK_NSIS_INSTALLED_ICON_NAME "bin\\ostrel-configurator.exe")
set(CPACK_NSIS_MUI_ICON ${CMAKE_SOURCE_DIR}/data/windows/ostrel-configurator.ico)
set(CPACK_NSIS_MUI_UNIICON ${CPACK_NSIS_MUI_ICON})
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_EXECUTABLE_PRE_ARGUMENTS [[-XTarget\ amd64-unicode]])  # 64-bit itself

# Configurations open with the program. Whoever gave them to another one since keeps that.
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [[
  WriteRegStr SHCTX "Software\Classes\.ocf" "" "Ostrel.Configuration"
  WriteRegStr SHCTX "Software\Classes\Ostrel.Configuration" "" "Logger configuration"
  WriteRegStr SHCTX "Software\Classes\Ostrel.Configuration\DefaultIcon" "" "$INSTDIR\bin\ostrel-configurator.exe,0"
  WriteRegStr SHCTX "Software\Classes\Ostrel.Configuration\shell\open\command" "" '"$INSTDIR\bin\ostrel-configurator.exe" "%1"'
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
]])
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS [[
  ReadRegStr $0 SHCTX "Software\Classes\.ocf" ""
  StrCmp $0 "Ostrel.Configuration" 0 +2
    DeleteRegKey SHCTX "Software\Classes\.ocf"
  DeleteRegKey SHCTX "Software\Classes\Ostrel.Configuration"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
]])
# Behind the removal of what the installer keeps there.
set(CPACK_NSIS_DELETE_ICONS_EXTRA
    "  DeleteRegKey /ifempty SHCTX \"Software\\${CPACK_PACKAGE_VENDOR}\"")
include(CPack)
