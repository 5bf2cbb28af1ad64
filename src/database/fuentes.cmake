list(APPEND VANTA_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Registro.cpp)
list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/AlmacenResultados.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ControlImagen.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmAmpliador.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmBaseDatos.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GuardarBaseDatos.cpp)
