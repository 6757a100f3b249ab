# Plays SCRIPTS with PROGRAM, each in the fresh data folder FOLDER.
foreach(script IN LISTS SCRIPTS)
    file(REMOVE_RECURSE ${FOLDER})
    execute_process(COMMAND ${PROGRAM} ${FOLDER} INPUT_FILE ${script} OUTPUT_VARIABLE output
                    RESULT_VARIABLE result)
    if(NOT result EQUAL 0 OR NOT output MATCHES "^finish: [^\n]+\n$")
        message(SEND_ERROR "${script} isn't won: ${result} ${output}")
        continue()
    endif()
    file(READ ${FOLDER}/Player1.sre scores)
    if(NOT scores MATCHES "^[^\n]*,1\r?\n$")
        message(SEND_ERROR "${script} left these results: ${scores}")
    endif()
endforeach()
