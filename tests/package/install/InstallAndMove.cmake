# Installs what TREE has built into ORIGINAL and moves it to PREFIX, both below SCRATCH, which is
# emptied first.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${TREE}" --config "${CONFIG}" --prefix "${ORIGINAL}"
    COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${ORIGINAL}" "${PREFIX}")
