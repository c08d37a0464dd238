# Debian's emscripten for the preset "web": what it lacks of the library, exceptions, and node to run what it has compiled.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

set(CMAKE_CXX_FLAGS_INIT "-fexceptions -isystem ${CMAKE_CURRENT_LIST_DIR}/include")
set(CMAKE_CXX_FLAGS_MINSIZEREL "-Oz -DNDEBUG" CACHE STRING "As small as can be: players wait for it")
# The linker runs node scripts from Debian's packages. They lie in a folder that another node than Debian's searches only when it is told.
set(CMAKE_CXX_LINKER_LAUNCHER ${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs)
# Nothing of /usr may be searched but the headers of this library, because they are good for any compiler.
set(nlohmann_json_DIR ${CMAKE_CURRENT_LIST_DIR})
