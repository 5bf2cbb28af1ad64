list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_AireHumedo.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Combustible.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Combustion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Graficas.cpp)
