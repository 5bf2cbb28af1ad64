list(APPEND VANTA_GUI_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/main_pruebas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_SuperficieQt.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_frmFase1.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Etapas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Capturas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Vistas.cpp)
list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/test_LecturaRaton.cpp)
