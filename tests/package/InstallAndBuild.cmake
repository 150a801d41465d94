# Installs what was built, as shared and as static libraries, and builds and runs the hosts beside this file with each.
# Both kinds go to one place and serve one build folder, so that the hosts are compiled once and linked twice.

cmake_minimum_required(VERSION 3.25)

string(RANDOM LENGTH 12 name)
set(temporary $ENV{TMPDIR})
if(NOT temporary)
    set(temporary /tmp)
endif()
set(place ${temporary}/tessellon-package-${name})
set(parts Headless Sqlite Odbc)
if(QTSQL)
    list(APPEND parts QtSql)
endif()
if(QT)
    list(APPEND parts Qt)
endif()
list(JOIN parts " " given)

function(fail why)
    file(REMOVE_RECURSE ${place})
    message(FATAL_ERROR "${why}")
endfunction()

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGV " " command)
        fail("${command}\ngave ${status}:\n${output}")
    endif()
endfunction()

function(install_kind kind)
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${place}/usr --component ${kind})
endfunction()

function(configure_hosts)
    run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${place}/hosts -B ${place}/build -DCMAKE_CXX_COMPILER=${CXX}
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH=${place}/usr -DVERSION=${VERSION} ${ARGV})
endfunction()

function(run_hosts type)
    configure_hosts(-DKIND=${type} "-DPARTS=${given}")
    run(${CMAKE_COMMAND} --build ${place}/build --parallel 2)
    foreach(part IN LISTS parts)
        run(${place}/build/${part})
    endforeach()
endfunction()

get_filename_component(source ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/ DESTINATION ${place}/hosts)

install_kind(Shared)
run_hosts(SHARED)
install_kind(Static)
run_hosts(STATIC)
configure_hosts(-DKIND=SHARED "-DPARTS=${given}" -DBUILD_SHARED_LIBS=ON)
configure_hosts(-DPARTS=)

file(GLOB_RECURSE scripts ${place}/usr/*.cmake)
foreach(script IN LISTS scripts)
    file(READ ${script} text)
    string(FIND "${text}" "${source}/" at)
    if(NOT at EQUAL -1)
        fail("${script} names the source tree, which need not be there.")
    endif()
endforeach()
file(REMOVE_RECURSE ${place})
