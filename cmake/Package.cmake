# What `cmake --install` leaves behind: the libraries, their headers and the package that find_package(Tessellon) finds.
# Static and shared libraries are made of the same objects, so the second kind costs no more than its linking.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

option(BUILD_SHARED_LIBS "Install shared libraries, not static ones" OFF)
if(BUILD_SHARED_LIBS)
    set(installed_kind Shared)
else()
    set(installed_kind Static)
endif()
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Tessellon)
set(package_headers "")

# tessellon_part(Qt OF tessellon_qt ON QtSql LINK PUBLIC Qt6::Widgets HEADERS qt/SheetWidget.h): the target Tessellon::Qt
# of the package, made of these targets' objects, on that other part. Installed are the headers named, and what they
# include.
function(tessellon_part part)
    cmake_parse_arguments(PARSE_ARGV 1 given "" "" "OF;ON;LINK;HEADERS")
    string(TOLOWER ${part} suffix)
    set(objects "")
    foreach(target IN LISTS given_OF)
        list(APPEND objects $<TARGET_OBJECTS:${target}>)
    endforeach()
    foreach(kind Static Shared)
        set(name package_${part}_${kind})
        string(TOUPPER ${kind} type)
        add_library(${name} ${type} ${objects})
        set_target_properties(${name} PROPERTIES EXPORT_NAME ${part} OUTPUT_NAME tessellon-${suffix}
            LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
            WINDOWS_EXPORT_ALL_SYMBOLS ON INSTALL_RPATH $ORIGIN INSTALL_RPATH_USE_LINK_PATH ON)
        target_compile_features(${name} INTERFACE cxx_std_20)
        target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tessellon>)
        target_link_libraries(${name} ${given_LINK})
        foreach(other IN LISTS given_ON)
            target_link_libraries(${name} PUBLIC package_${other}_${kind})
        endforeach()
        if(kind STREQUAL Shared AND CMAKE_SYSTEM_NAME STREQUAL Linux AND NOT TESSELLON_SANITIZE)
            target_link_options(${name} PRIVATE LINKER:--no-undefined)
        endif()
        set(rest "")
        if(NOT kind STREQUAL installed_kind)
            set(rest EXCLUDE_FROM_ALL)
            if(NOT TESSELLON_TESTS)
                # The tests try both kinds.
                set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
            endif()
        endif()
        set(export Tessellon${part}${kind})
        install(TARGETS ${name} EXPORT ${export} COMPONENT ${kind} ${rest})
        install(EXPORT ${export} NAMESPACE Tessellon:: DESTINATION ${package_folder} COMPONENT ${kind} ${rest})
    endforeach()
    set(package_headers ${package_headers} ${given_HEADERS} PARENT_SCOPE)
endfunction()

tessellon_part(Headless OF tessellon_sheet tessellon_engine tessellon_headless tessellon_records
    HEADERS shell/TessellonSheet.h engine/DefaultProperties.h headless/HeadlessToolkit.h headless/HeadlessHand.h)
tessellon_part(Sqlite OF tessellon_sqlite ON Headless LINK PRIVATE SQLite::SQLite3
    HEADERS recordset/sqlite/SqliteConnection.h recordset/sqlite/SqliteRecordset.h)
tessellon_part(Odbc OF tessellon_odbc ON Headless LINK PRIVATE ODBC::ODBC
    HEADERS recordset/odbc/OdbcConnection.h recordset/odbc/OdbcRecordset.h)
if(TARGET tessellon_qtsql)
    tessellon_part(QtSql OF tessellon_qtsql ON Headless LINK PUBLIC Qt6::Sql
        HEADERS recordset/qtsql/QtSqlConnection.h recordset/qtsql/QtSqlRecordset.h)
endif()
if(TESSELLON_QT)
    tessellon_part(Qt OF tessellon_qt ON QtSql LINK PUBLIC Qt6::Widgets HEADERS qt/SheetWidget.h)
endif()

set(package_scripts ${PROJECT_BINARY_DIR}/package)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/TessellonConfig.cmake.in
    ${package_scripts}/TessellonConfig.cmake INSTALL_DESTINATION ${package_folder})
# Below 1.0 a new minor version may break a host.
write_basic_package_version_file(${package_scripts}/TessellonConfigVersion.cmake COMPATIBILITY SameMinorVersion)
configure_file(${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake.in ${package_scripts}/InstallHeaders.cmake @ONLY)
foreach(kind Static Shared)
    set(rest "")
    if(NOT kind STREQUAL installed_kind)
        set(rest EXCLUDE_FROM_ALL)
    endif()
    install(SCRIPT ${package_scripts}/InstallHeaders.cmake COMPONENT ${kind} ${rest})
    install(FILES ${package_scripts}/TessellonConfig.cmake ${package_scripts}/TessellonConfigVersion.cmake
        DESTINATION ${package_folder} COMPONENT ${kind} ${rest})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT ${kind} ${rest})
endforeach()
