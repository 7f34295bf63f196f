# The Debian package: `./package` builds it, or `cpack --preset release` from a finished release build.

install(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(packed_changelog ${CMAKE_BINARY_DIR}/packaging/changelog.gz)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
add_custom_command(OUTPUT ${packed_changelog} DEPENDS ${CMAKE_SOURCE_DIR}/packaging/changelog VERBATIM
                   COMMAND ${GZIP} -n -9 -c ${CMAKE_SOURCE_DIR}/packaging/changelog > ${packed_changelog})
add_custom_target(changelog ALL DEPENDS ${packed_changelog})
install(FILES ${packed_changelog} DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zefirondo)
set(CPACK_PACKAGE_CONTACT "Zefirondo maintainers <maintainers@zefirondo.example>"
    CACHE STRING "Who answers for the package: name and address")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design closed and vented loudspeaker boxes")
set(CPACK_PACKAGE_DESCRIPTION
    "Zefirondo computes a box for a woofer from its Thiele-Small parameters, typed
or taken from a measured impedance: volume, tuning, ports and the inner
dimensions of the cabinet. It draws the transfer function, sound pressure,
excursion, air speed in the port and phase of the design, with filters and
measured responses laid over it, and prints the project.
.
The package holds the desktop program in English and Italian with its manual,
and zefirondo-run, which does the same by a script and without a screen.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The words of the desktop's own dialogs in Italian, and the font that pages are laid out for.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
