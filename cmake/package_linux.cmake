# What is installed on Linux, and the Debian package of it by cpack.
include(GNUInstallDirs)
find_program(GZIP gzip REQUIRED)
set(made)

# install_made(FILE OPTION...): a file that the build makes.
macro(install_made file)
    list(APPEND made ${file})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${file} ${ARGN})
endmacro()

# install_packed(FILE FOLDER): a text, compressed.
macro(install_packed file folder)
    get_filename_component(name ${file} NAME)
    add_custom_command(OUTPUT ${name}.gz DEPENDS ${file}
        COMMAND ${GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/${file} > ${name}.gz)
    install_made(${name}.gz DESTINATION ${folder})
endmacro()

set(programs skerrand-headless skerrand-simulator make_world)
if(SKERRAND_DESKTOP)
    list(APPEND programs skerrand)
    install(FILES data/skerrand.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    foreach(size 16 22 24 32 48 64 128 256)
        skerrand_icon(icon${size}.png ${size})
        install_made(icon${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME skerrand.png)
    endforeach()
    skerrand_icon(icon.svg 128 --format svg)
    install_made(icon.svg DESTINATION ${icons}/scalable/apps RENAME skerrand.svg)
endif()
install(TARGETS ${programs})
install(PROGRAMS tools/skerrand-chart TYPE BIN)
foreach(program ${programs} skerrand-chart)
    install_packed(docs/man/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install(FILES data/demo_airports.txt data/magnetic_variation.txt
    DESTINATION ${CMAKE_INSTALL_DATADIR}/skerrand)
install(FILES data/copyright docs/headless.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install_packed(data/changelog ${CMAKE_INSTALL_DOCDIR})
add_custom_target(skerrand_installed ALL DEPENDS ${made})

set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "The authors of Skerrand <authors@skerrand.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "charts of airports beside Flight Simulator 2002")
set(CPACK_PACKAGE_DESCRIPTION
    "Skerrand reads the simulator's own scenery, draws the charts of a departure and
a destination from it, and follows the aircraft on them.
.
Programs for scripts and a stand-in for the simulator come with it.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups, librsvg2-bin")
include(CPack)
