list(APPEND VANTA_GUI_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Dibujos.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Programa.cpp)
# The version shown by the about window is the project's own.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/Programa.cpp PROPERTIES
  COMPILE_DEFINITIONS "VANTA_VERSION=\"${PROJECT_VERSION}\"")
