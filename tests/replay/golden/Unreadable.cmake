# cmake -DREPLAY=COMMAND -DWORK=FOLDER -P Unreadable.cmake: a script that cannot be read ends with status 2 and its line,
# from a file and from standard input, and nothing of it runs.
cmake_minimum_required(VERSION 3.25)

set(script ${WORK}/unreadable.script)
file(WRITE ${script} "? Row\nRow 1.5\n")

function(expect_refusal place)
    execute_process(${ARGN} OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
    if(NOT status EQUAL 2 OR NOT out STREQUAL "" OR NOT err MATCHES "^${place}: [^\n]+\n$")
        message(FATAL_ERROR "status ${status}, output \"${out}\", error \"${err}\"")
    endif()
endfunction()

expect_refusal(".*/unreadable.script:2" COMMAND ${REPLAY} --platform headless ${script})
expect_refusal("<stdin>:2" COMMAND ${REPLAY} INPUT_FILE ${script})
expect_refusal(".*/missing.script:0" COMMAND ${REPLAY} ${WORK}/missing.script)

execute_process(COMMAND ${REPLAY} ${script} --platform window RESULT_VARIABLE status ERROR_QUIET)
if(NOT status EQUAL 2)
    message(FATAL_ERROR "an unknown platform: status ${status}")
endif()
