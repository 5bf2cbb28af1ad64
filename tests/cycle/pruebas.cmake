list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_Ciclo.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Transformaciones.cpp)
