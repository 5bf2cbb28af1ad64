list(APPEND VANTA_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/AireHumedo.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Combustible.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Combustion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Graficas.cpp)
list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/frmAireHumedad.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmCombustible.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frmGasesCombustion.cpp)
