# SPDX-License-Identifier: MIT
# Runs a script of figures and demands that it prints exactly the committed ones.
execute_process(COMMAND ${PYTHON} ${SCRIPT} OUTPUT_VARIABLE printed RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCRIPT} failed: ${status}")
endif()
file(READ ${FIGURES} committed)
if(NOT printed STREQUAL committed)
    message(FATAL_ERROR "${FIGURES} is not what ${SCRIPT} prints")
endif()
