list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_Numeros.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Superficie.cpp)
