# Plays SCRIPT with PROGRAM in the fresh data folder FOLDER and compares what it writes with the file
# EXPECTED, byte for byte. Behind "error: " any text will do.
file(REMOVE_RECURSE ${FOLDER} ${FOLDER}.out)
execute_process(COMMAND ${PROGRAM} ${FOLDER} INPUT_FILE ${SCRIPT} OUTPUT_FILE ${FOLDER}.out
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "exit status ${result}")
endif()
file(READ ${FOLDER}.out got)
file(READ ${EXPECTED} expected)
string(REGEX REPLACE "(^|\n)error: [^\n]+" "\\1error: " got "${got}")
if(NOT got STREQUAL expected)
    file(WRITE ${FOLDER}.got "${got}")
    execute_process(COMMAND diff ${EXPECTED} ${FOLDER}.got OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "expected (<) and got (>):\n${difference}")
endif()
