# The manual page of vanta from the program's own words: `vanta --help` as
# what the page tells, `vanta --version` as the version, one page of section 1.
# Run as cmake -DPROGRAMA=… -DNOMBRE=… -DFECHA=… -DSALIDA=… -P Manual.cmake.
execute_process(COMMAND ${PROGRAMA} --help OUTPUT_VARIABLE ayuda RESULT_VARIABLE r1)
execute_process(COMMAND ${PROGRAMA} --version OUTPUT_VARIABLE version RESULT_VARIABLE r2
                OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT r1 EQUAL 0 OR NOT r2 EQUAL 0)
  message(FATAL_ERROR "vanta --help o --version no responde")
endif()

# Text as roff reads it: a backslash written as \e, a hyphen as \-, and a
# line that starts with a point or an apostrophe kept as text.
function(roff texto salida)
  string(REPLACE "\\" "\\e" texto "${texto}")
  string(REPLACE "-" "\\-" texto "${texto}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" texto "${texto}")
  set(${salida} "${texto}" PARENT_SCOPE)
endfunction()

string(REGEX REPLACE "^vanta " "" numero "${version}")
roff("${ayuda}" cuerpo)
roff("${NOMBRE}" nombre)
file(WRITE ${SALIDA}
".TH VANTA 1 \"${FECHA}\" \"vanta ${numero}\" \"Órdenes de usuario\"
.SH NOMBRE
vanta \\- ${nombre}
.SH SINOPSIS
.B vanta
[\\fIorden\\fR] [\\fIopciones\\fR]
.SH DESCRIPCIÓN
Sin argumentos abre la ventana principal; con una orden hace el mismo
cálculo sin ventana. Lo que sigue es lo que dice
.BR \"vanta \\-\\-help\" .
.PP
.nf
${cuerpo}.fi
.SH VÉASE TAMBIÉN
.BR \"vanta estudio \\-\\-help\" ,
.BR \"vanta llama \\-\\-help\" .
")
