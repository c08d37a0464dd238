# What emscripten compiles: programs for node, and the game as a page.

# Makes the target a program that runs in node and works on the machine's files, as a native program does.
function(orvel_node_program target)
    target_link_options(${target} PRIVATE
        -sENVIRONMENT=node -sNODERAWFS -sEXIT_RUNTIME -sALLOW_MEMORY_GROWTH -sTOTAL_STACK=1MB -sWASM_ASYNC_COMPILATION=0
        --js-library ${PROJECT_SOURCE_DIR}/cmake/emscripten/node_files.js)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/emscripten/node_files.js)
endfunction()

orvel_node_program(pack_texts)
orvel_node_program(replay)
# The report of the headless player throws no exceptions. It is compiled without them, because with them the compiler leads each call that
# might throw through JavaScript, which is slow.
set_source_files_properties(app/replay_report.cpp PROPERTIES COMPILE_OPTIONS -fno-exceptions)
# A shell script starts the compiled headless player in node, so that tests can start it like the native one.
set(headless_player ${PROJECT_BINARY_DIR}/replay)
file(CONFIGURE OUTPUT ${headless_player} NEWLINE_STYLE UNIX @ONLY CONTENT [[#!/bin/sh
exec "@CMAKE_CROSSCOMPILING_EMULATOR@" "$(dirname "$0")/replay.js" "$@"
]])
file(CHMOD ${headless_player} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

include(cmake/pictures.cmake)
add_subdirectory(ui/web)

# A folder for a web server, and the one file.
install(DIRECTORY ${PROJECT_BINARY_DIR}/site/ DESTINATION orvel-tavoren COMPONENT site)
install(DIRECTORY LICENSES DESTINATION orvel-tavoren COMPONENT site)
install(FILES ${PROJECT_BINARY_DIR}/orvel-tavoren.html DESTINATION . COMPONENT file)
install(DIRECTORY LICENSES DESTINATION . COMPONENT file)
set(CPACK_GENERATOR ZIP)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_ARCHIVE_SITE_FILE_NAME orvel-tavoren-${PROJECT_VERSION}-site)
set(CPACK_ARCHIVE_FILE_FILE_NAME orvel-tavoren-${PROJECT_VERSION}-html)
include(CPack)
