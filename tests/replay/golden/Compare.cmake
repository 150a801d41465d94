# cmake -DREPLAY=COMMAND -DSCRIPT=FILE.txt -DWORK=FOLDER [-DPLATFORM=NAME] -P Compare.cmake: plays a script and holds
# what it prints against FILE.out beside it, the same on every platform. The first lines that differ are shown with their
# number, the record's behind "<". What was printed is left in WORK for a look, or to become the new record.
cmake_minimum_required(VERSION 3.25)

get_filename_component(name ${SCRIPT} NAME_WE)
get_filename_component(folder ${SCRIPT} DIRECTORY)
set(printed ${WORK}/${name}.out)
set(platform "")
if(PLATFORM)
    set(platform --platform ${PLATFORM})
endif()
execute_process(COMMAND ${REPLAY} ${SCRIPT} ${platform} OUTPUT_FILE ${printed} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${name}: exit status ${status}")
endif()
execute_process(COMMAND diff ${folder}/${name}.out ${printed} OUTPUT_VARIABLE difference RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
    string(SUBSTRING "${difference}" 0 4000 difference)
    message("${difference}")
    message(FATAL_ERROR "${name}: ${printed} is not what the record says")
endif()
