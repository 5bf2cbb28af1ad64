list(APPEND VANTA_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/InformeTexto.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InformeHTML.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ArchivosInforme.cpp)
# The report windows, the dialogs they use and the writing of a saved page.
list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/DialogosInforme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PaginaWeb.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VentanaTexto.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmInforme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmMostrar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VisoresInforme.cpp)
