list(APPEND VANTA_GUI_TESTS ${CMAKE_CURRENT_LIST_DIR}/test_Recursos.cpp)
# The help pages are checked as the build copies them beside the program.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/test_Recursos.cpp PROPERTIES
  COMPILE_DEFINITIONS "VANTA_DIR_CONSTRUCCION=\"${CMAKE_BINARY_DIR}\"")
