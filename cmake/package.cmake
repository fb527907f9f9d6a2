# What is installed, and the Debian package that CPack makes of it.
include(GNUInstallDirs)
find_program(GZIP gzip REQUIRED)

# Installs `source` compressed, as `name`.gz.
function(tarvis_install_compressed source destination name)
  set(compressed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(OUTPUT ${compressed} DEPENDS ${PROJECT_SOURCE_DIR}/${source} VERBATIM
                     COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
                     COMMAND sh -c "exec \"$0\" -9nc \"$1\" >\"$2\"" ${GZIP} ${PROJECT_SOURCE_DIR}/${source} ${compressed})
  add_custom_target(compressed-${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${destination})
endfunction()

install(TARGETS tarvis-check RUNTIME)
tarvis_install_compressed(packaging/tarvis-check.1 ${CMAKE_INSTALL_MANDIR}/man1 tarvis-check.1)
if(TARGET tarvis)
  install(TARGETS tarvis RUNTIME)
  install(TARGETS tarvis-pdf RUNTIME)
  tarvis_install_compressed(packaging/tarvis-pdf.1 ${CMAKE_INSTALL_MANDIR}/man1 tarvis-pdf.1)
  install(FILES packaging/tarvis-pdf.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME tarvis-pdf)
  tarvis_install_compressed(packaging/tarvis.1 ${CMAKE_INSTALL_MANDIR}/man1 tarvis.1)
  tarvis_install_compressed(packaging/tarvis.ini.5 ${CMAKE_INSTALL_MANDIR}/man5 tarvis.ini.5)
  install(FILES packaging/tarvis.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/tarvis.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES packaging/example.tarvis.tarvis.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endif()
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
tarvis_install_compressed(packaging/changelog ${CMAKE_INSTALL_DOCDIR} changelog)
install(FILES CHANGELOG.md docs/user-guide.md docs/file-formats.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/examples docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "Tarvis maintainers <maintainers@tarvis.example>")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${PROJECT_SOURCE_DIR}/packaging/description.txt)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk, fonts-dejavu-core, fonts-tlwg-loma-ttf, cups-client")
include(CPack)
