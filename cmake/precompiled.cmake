# Precompiled headers: the toolkit's, the standard library's and the test library's headers take most of the compiler's
# time. Each set of them is compiled once and serves all targets with the same options. Files must still include what
# they use: lint.sh has each header compiled alone, without these.

# Adds the target `name`, which precompiles `header` of this folder for others to reuse.
function(tarvis_precompiled name header)
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake)
  target_link_libraries(${name} PRIVATE ${ARGN} tarvis_flags)
  target_precompile_headers(${name} PRIVATE <${header}>)  # not by its path, so that the compiler cache serves every clone
endfunction()
