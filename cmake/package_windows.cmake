# What a pilot gets for Windows: an archive by cpack, and an installer by the target of that name.
set(package skerrand-${PROJECT_VERSION}-${SKERRAND_WINDOWS_PROCESSOR})
set(programs skerrand skerrand-headless skerrand-simulator make_world)
configure_file(platform/windows/README.txt README.txt NEWLINE_STYLE DOS)
install(TARGETS ${programs} DESTINATION .)
install(FILES ${CMAKE_BINARY_DIR}/README.txt DESTINATION .)
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/data DESTINATION .)
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME ${package})
include(CPack)

find_program(MAKENSIS makensis)
add_custom_target(installer DEPENDS ${programs} VERBATIM
    COMMAND ${MAKENSIS} -V2 -NOCD -DVERSION=${PROJECT_VERSION} -DBUILD=${CMAKE_BINARY_DIR}
        -DFILE=${CMAKE_BINARY_DIR}/${package}-setup.exe
        ${CMAKE_SOURCE_DIR}/platform/windows/installer.nsi)
