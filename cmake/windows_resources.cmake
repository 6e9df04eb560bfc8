# What skerrand.exe, and the tests that show its windows, carry beside their code: the icon, the
# picture of the splash window, the manifest and the version. In 256 colours and packed the picture
# has a twentieth of its size and looks the same.
find_program(CONVERT convert REQUIRED)
set(icons)
foreach(size 16 32 48 64 256)
    skerrand_icon(icon${size}.png ${size})
    list(APPEND icons icon${size}.png)
endforeach()
add_custom_command(OUTPUT skerrand.ico DEPENDS ${icons} COMMAND ${CONVERT} ${icons} skerrand.ico)
skerrand_picture(picture.png --width 640)
add_custom_command(OUTPUT picture.bmp DEPENDS picture.png
    COMMAND ${CONVERT} picture.png +dither -colors 256 -compress RLE BMP3:picture.bmp)

set(resources platform/windows/skerrand.rc)
add_library(skerrand_resources OBJECT ${resources})
target_link_libraries(skerrand PRIVATE skerrand_resources)
set_source_files_properties(${resources} PROPERTIES
    INCLUDE_DIRECTORIES ${CMAKE_CURRENT_BINARY_DIR}
    OBJECT_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/skerrand.ico;${CMAKE_CURRENT_BINARY_DIR}/picture.bmp")
