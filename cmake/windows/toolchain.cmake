# Compiles for 64-bit Windows with the distribution's cross compiler. TARVIS_WINDOWS_PARTS in the environment names the
# folders of the libraries, separated by semicolons (tools/windows_parts prints them). Of this machine's own files only
# programs are found: compilers, and those of the toolkit that write sources.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH $ENV{TARVIS_WINDOWS_PARTS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(TARVIS_PKG_CONFIG_FOLDERS /no/folder/of/this/machine)
foreach(part ${CMAKE_FIND_ROOT_PATH})
  string(APPEND TARVIS_PKG_CONFIG_FOLDERS ":${part}/lib/pkgconfig")
endforeach()
set(ENV{PKG_CONFIG_LIBDIR} "${TARVIS_PKG_CONFIG_FOLDERS}")

# The toolkit of this machine, whose programs write sources for that of Windows. Both have the same version.
file(GLOB TARVIS_HOST_TOOLKIT /usr/lib/*/cmake/Qt6HostInfo)
if(TARVIS_HOST_TOOLKIT)
  get_filename_component(QT_HOST_PATH_CMAKE_DIR "${TARVIS_HOST_TOOLKIT}" DIRECTORY)
  set(QT_HOST_PATH /usr)
endif()
