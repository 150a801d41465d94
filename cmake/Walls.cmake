# The walls of the house: which folder may include what. The build fails when an include breaks one.
add_custom_target(tessellon_walls
    COMMAND ${CMAKE_COMMAND} -DROOT=${PROJECT_SOURCE_DIR} -P ${PROJECT_SOURCE_DIR}/cmake/CheckWalls.cmake
    COMMENT "Walls")
