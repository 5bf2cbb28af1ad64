list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_Informes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_ArchivosInforme.cpp)
list(APPEND VANTA_GUI_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_VisoresInforme.cpp)
