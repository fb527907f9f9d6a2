# What Windows reads from a program file: its icon, its version, and a manifest of what it can do.
enable_language(RC)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(MAGICK NAMES magick convert REQUIRED)

# The icon in all sizes that Windows shows, made of the drawing.
set(TARVIS_ICON ${PROJECT_BINARY_DIR}/packaging/tarvis.ico)
set(drawing ${PROJECT_SOURCE_DIR}/packaging/tarvis.svg)
add_custom_command(OUTPUT ${TARVIS_ICON} DEPENDS ${drawing} VERBATIM
                   COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
                   COMMAND ${RSVG_CONVERT} -w 256 -h 256 ${drawing} -o ${TARVIS_ICON}.png
                   COMMAND ${MAGICK} ${TARVIS_ICON}.png -define icon:auto-resize=256,64,48,32,24,16 ${TARVIS_ICON})

function(tarvis_windows_resources target description)
  set(resources ${PROJECT_BINARY_DIR}/packaging/${target}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES
                              OBJECT_DEPENDS "${TARVIS_ICON};${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest")
  target_sources(${target} PRIVATE ${resources})
endfunction()

tarvis_windows_resources(tarvis-check "Checks the files of the print module")
tarvis_windows_resources(tarvis-pdf "Prints into PDF files")
tarvis_windows_resources(tarvis "Print module")
set_target_properties(tarvis PROPERTIES WIN32_EXECUTABLE ON)  # no console opens with it
