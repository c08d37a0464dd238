# The game with its windows: the Qt desktop and the program itself.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
find_package(PNG REQUIRED)

include(cmake/pictures.cmake)
orvel_library(ui/qt orvel_ui Qt6::Widgets PNG::PNG xcb)

add_executable(orvel-tavoren app/main.cpp)
target_link_libraries(orvel-tavoren PRIVATE orvel_app orvel_ui_qt)
set_target_properties(orvel-tavoren PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${program_folder})
add_dependencies(orvel-tavoren pictures story)

if(ORVEL_TESTS)
    add_subdirectory(bench/qt)
endif()
