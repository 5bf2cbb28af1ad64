list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_Especies.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Mezclas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Busquedas.cpp)
