list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_TablasPropiedades.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_LineaTablas.cpp)
list(APPEND VANTA_GUI_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_frmHerramientas.cpp)
