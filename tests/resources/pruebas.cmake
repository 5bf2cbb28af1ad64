# The pictures, the help pages as built, and the about and bibliography
# windows: a Qt Test program of their own, on the offscreen platform.
if(VANTA_GUI)
  add_executable(vanta_recursos_tests ${CMAKE_CURRENT_LIST_DIR}/test_Recursos.cpp)
  target_link_libraries(vanta_recursos_tests PRIVATE vanta_gui Qt6::Test)
  target_compile_definitions(vanta_recursos_tests PRIVATE VANTA_DIR_CONSTRUCCION="${CMAKE_BINARY_DIR}")
  add_dependencies(vanta_recursos_tests vanta_ayuda)
  add_test(NAME vanta_recursos_tests COMMAND vanta_recursos_tests)
  set_tests_properties(vanta_recursos_tests PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endif()
