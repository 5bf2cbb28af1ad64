# The about and bibliography windows.
list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/frmAcercaDe.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmBibliografia.cpp)
