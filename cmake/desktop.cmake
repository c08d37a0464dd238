# The game with its windows: the Qt desktop, the pictures and the program itself.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
find_package(PNG REQUIRED)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(PNGQUANT pngquant REQUIRED)

orvel_library(ui/qt orvel_ui Qt6::Widgets PNG::PNG xcb)

# Pictures are drawn at twice their window's size, to stay sharp on dense screens, and with a palette, for the game to open sooner.
# It knows them by names without an extension.
function(orvel_picture name width height)
    math(EXPR width "2 * ${width}")
    math(EXPR height "2 * ${height}")
    set(picture ${program_folder}/data/pics/${name})
    set(drawn ${PROJECT_BINARY_DIR}/art/${name}.png)
    add_custom_command(OUTPUT ${picture}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/art
        COMMAND ${RSVG_CONVERT} --width ${width} --height ${height} --output ${drawn} art/${name}.svg
        COMMAND ${PNGQUANT} --strip --speed 1 --force --output ${picture} 256 ${drawn}
        DEPENDS art/${name}.svg art/alcaster.svg art/lettering.svg art/parts.svg art/steel.css
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Drawing ${name}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY orvel_pictures ${picture})
endfunction()

orvel_picture(gui1 665 562)
orvel_picture(gui2 433 309)
orvel_picture(gui3 194 73)
orvel_picture(gui4 312 217)
# The icon of the windows, 32 pixels wide.
add_custom_command(OUTPUT ${program_folder}/data/pics/icon
    COMMAND ${RSVG_CONVERT} --width 32 --height 32 --output ${program_folder}/data/pics/icon art/icon.svg
    DEPENDS art/icon.svg
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Drawing the icon"
    VERBATIM)
set_property(GLOBAL APPEND PROPERTY orvel_pictures ${program_folder}/data/pics/icon)
get_property(pictures GLOBAL PROPERTY orvel_pictures)
add_custom_target(pictures ALL DEPENDS ${pictures})

add_executable(orvel-tavoren app/main.cpp)
target_link_libraries(orvel-tavoren PRIVATE orvel_app orvel_ui_qt)
set_target_properties(orvel-tavoren PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${program_folder})
add_dependencies(orvel-tavoren pictures story)

if(ORVEL_TESTS)
    add_subdirectory(bench/qt)
endif()
