# Pictures made of the one drawing, data/skerrand.svg, while building: each is a file of the current
# build folder.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(skerrand_drawing ${CMAKE_SOURCE_DIR}/data/skerrand.svg)

# skerrand_picture(FILE OPTION...): the whole drawing, but for what the options of rsvg-convert tell.
function(skerrand_picture file)
    add_custom_command(OUTPUT ${file} DEPENDS ${skerrand_drawing}
        COMMAND ${RSVG_CONVERT} ${ARGN} --output ${file} ${skerrand_drawing})
endfunction()

# skerrand_icon(FILE SIZE OPTION...): the part of the drawing that is the icon, so many pixels wide.
function(skerrand_icon file size)
    skerrand_picture(${file} --export-id icon --width ${size} --height ${size} ${ARGN})
endfunction()
