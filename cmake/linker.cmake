# A fast linker where there is one.
find_program(TARVIS_MOLD mold)
if(TARVIS_MOLD AND UNIX)
  add_link_options(-fuse-ld=mold)
endif()
