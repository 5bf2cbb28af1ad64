# The help pages, the version and the folders the program looks in.
include(GNUInstallDirs)
# Where the help pages live once installed, and the same seen from the
# program's folder, so that a relocated installation still finds them.
set(VANTA_DIR_AYUDA ${CMAKE_INSTALL_DATADIR}/vanta/ayuda)
file(RELATIVE_PATH _ayuda_relativa ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}
     ${CMAKE_INSTALL_PREFIX}/${VANTA_DIR_AYUDA})

# The version shown by the about window is the project's own.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/Programa.cpp PROPERTIES
  COMPILE_DEFINITIONS "VANTA_VERSION=\"${PROJECT_VERSION}\"")
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/Dibujos.cpp PROPERTIES
  COMPILE_DEFINITIONS "VANTA_DIR_AYUDA_INSTALADA=\"${CMAKE_INSTALL_PREFIX}/${VANTA_DIR_AYUDA}\";VANTA_AYUDA_RELATIVA=\"${_ayuda_relativa}\"")

# The help pages are copied beside the program at build time (<build>/ayuda),
# so that the program run from the build tree opens them.
file(GLOB VANTA_PAGINAS_AYUDA CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/ayuda/*)
set(_ayuda_copiada)
foreach(_pagina IN LISTS VANTA_PAGINAS_AYUDA)
  get_filename_component(_nombre ${_pagina} NAME)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/ayuda/${_nombre}
                     COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_pagina} ${CMAKE_BINARY_DIR}/ayuda/${_nombre}
                     DEPENDS ${_pagina}
                     COMMENT "Ayuda: ${_nombre}" VERBATIM)
  list(APPEND _ayuda_copiada ${CMAKE_BINARY_DIR}/ayuda/${_nombre})
endforeach()
add_custom_target(vanta_ayuda ALL DEPENDS ${_ayuda_copiada})
