list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_Registro.cpp)

if(VANTA_GUI)
  list(APPEND VANTA_GUI_TESTS
    ${CMAKE_CURRENT_LIST_DIR}/test_BaseDatos.cpp
    ${CMAKE_CURRENT_LIST_DIR}/test_frmBaseDatos.cpp)
  # A second program on the same file: killed mid-save, holding a lock, or
  # saving without the right to write.
  add_executable(vanta_ayudante_bd ${CMAKE_CURRENT_LIST_DIR}/ayudante_bd.cpp)
  target_link_libraries(vanta_ayudante_bd PRIVATE vanta_gui)
  set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/test_BaseDatos.cpp PROPERTIES
    COMPILE_DEFINITIONS "VANTA_AYUDANTE_BD=\"$<TARGET_FILE:vanta_ayudante_bd>\"")
  cmake_language(DEFER CALL add_dependencies vanta_gui_tests vanta_ayudante_bd)
endif()
