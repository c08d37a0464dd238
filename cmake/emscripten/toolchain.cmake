# emscripten for the preset "web": the parts of the C++ library that it may lack, exceptions, and node to run the compiled programs.
if(DEFINED ENV{EMSDK})
    include($ENV{EMSDK}/upstream/emscripten/cmake/Modules/Platform/Emscripten.cmake)
else()
    include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
endif()

set(CMAKE_CXX_FLAGS_INIT "-fexceptions -isystem ${CMAKE_CURRENT_LIST_DIR}/include")
set(CMAKE_CXX_FLAGS_MINSIZEREL "-Oz -DNDEBUG" CACHE STRING "As small as can be: players wait for it")
# Debian's linker runs node scripts that ask for Debian's node modules. A node that is not Debian's looks for them only where NODE_PATH says.
set(CMAKE_CXX_LINKER_LAUNCHER ${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs)
# Of all packages in /usr this library alone may be found: it has only headers, and those suit any compiler.
set(nlohmann_json_DIR ${CMAKE_CURRENT_LIST_DIR})
