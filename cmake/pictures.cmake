# The pictures that the game finds in its program folder, and its icon.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(PNGQUANT pngquant REQUIRED)

# Pictures are drawn at twice their window's size, so that they stay sharp on dense screens, and with a palette, because the game reads
# such pictures faster. The game knows them by names without an extension.
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

# Draws the icon into the file, `size` pixels wide; the rest are options for a page around it.
function(orvel_icon size file)
    cmake_path(GET file PARENT_PATH folder)
    add_custom_command(OUTPUT ${file}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${file} ${ARGN} art/icon.svg
        DEPENDS ${PROJECT_SOURCE_DIR}/art/icon.svg
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Drawing the icon at ${size}"
        VERBATIM)
endfunction()

orvel_picture(gui1 665 562)
orvel_picture(gui2 433 309)
orvel_picture(gui3 194 73)
orvel_picture(gui4 312 217)
# The icon of the windows.
orvel_icon(32 ${program_folder}/data/pics/icon)
get_property(pictures GLOBAL PROPERTY orvel_pictures)
list(APPEND pictures ${program_folder}/data/pics/icon)
add_custom_target(pictures ALL DEPENDS ${pictures})
