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

# The gates between numbers and text under coverage-guided fuzzing: Clang's
# libFuzzer with AddressSanitizer and UndefinedBehaviorSanitizer, built beside
# the tests when a clang++ that has it is on the machine, and run for a short
# while by the suite. Without one the test is reported as skipped.
if(NOT VANTA_SANITIZE)
  find_program(VANTA_CLANGXX NAMES clang++ clang++-16 clang++-15 clang++-14)
  if(VANTA_CLANGXX AND NOT DEFINED VANTA_LIBFUZZER)
    set(_prueba ${CMAKE_CURRENT_BINARY_DIR}/prueba_libfuzzer)
    file(WRITE ${_prueba}.cpp "#include <cstddef>\n#include <cstdint>\n"
         "extern \"C\" int LLVMFuzzerTestOneInput(const uint8_t*, size_t) { return 0; }\n")
    execute_process(COMMAND ${VANTA_CLANGXX} -fsanitize=fuzzer,address,undefined ${_prueba}.cpp -o ${_prueba}
                    RESULT_VARIABLE _resultado OUTPUT_QUIET ERROR_QUIET)
    if(_resultado EQUAL 0)
      set(VANTA_LIBFUZZER ON CACHE BOOL "clang++ builds libFuzzer targets")
    else()
      set(VANTA_LIBFUZZER OFF CACHE BOOL "clang++ builds libFuzzer targets")
    endif()
  endif()

  if(VANTA_CLANGXX AND VANTA_LIBFUZZER)
    set(_fuzz ${CMAKE_CURRENT_BINARY_DIR}/vanta_fuzz_numeros)
    set(_fuentes ${CMAKE_CURRENT_LIST_DIR}/fuzz_Numeros.cpp ${PROJECT_SOURCE_DIR}/src/core/services/Numeros.cpp)
    add_custom_command(
      OUTPUT ${_fuzz}
      COMMAND ${VANTA_CLANGXX} -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined
              -fno-sanitize-recover=undefined -I${PROJECT_SOURCE_DIR}/src -MD -MF ${_fuzz}.d ${_fuentes} -o ${_fuzz}
      DEPENDS ${_fuentes}
      DEPFILE ${_fuzz}.d
      COMMENT "libFuzzer: fuzz_numeros"
      VERBATIM)
    add_custom_target(fuzz_numeros ALL DEPENDS ${_fuzz})
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/corpus_numeros)
    add_test(NAME fuzz_numeros
             COMMAND ${_fuzz} -max_total_time=20 -seed=1 -timeout=10 -rss_limit_mb=2048
                     -dict=${CMAKE_CURRENT_LIST_DIR}/numeros.dict ${CMAKE_CURRENT_BINARY_DIR}/corpus_numeros)
  else()
    add_test(NAME fuzz_numeros COMMAND ${CMAKE_COMMAND} -E echo "fuzz_numeros: sin clang++ con libFuzzer, se omite")
    set_tests_properties(fuzz_numeros PROPERTIES SKIP_REGULAR_EXPRESSION "se omite")
  endif()
endif()
