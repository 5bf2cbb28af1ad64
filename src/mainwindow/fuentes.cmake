list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Controles.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmFase1.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmFase1Distribucion.cpp)
list(APPEND VANTA_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/DibujoDiagramas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LecturaRaton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Ampliacion.cpp)
# The about and bibliography windows.
list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/frmAcercaDe.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmBibliografia.cpp)
