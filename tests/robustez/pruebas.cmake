# Robustness: whole calculations, the tables and the readout on random inputs,
# and the searches pushed to their bounds.
list(APPEND VANTA_CORE_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/Aleatorios.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Inspeccion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Vigilancia.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_CalculoAleatorio.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_LecturaAleatoria.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_Limites.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_TablasAleatorias.cpp)
