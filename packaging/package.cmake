# The Debian package, made by the target "package".
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME molva-desk)
set(CPACK_PACKAGE_VENDOR "Molva Desk maintainers")
set(CPACK_PACKAGE_CONTACT "Molva Desk maintainers <maintainers@molva-desk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
    "Molva Desk keeps one connection to one node of the DX cluster, logs in by
itself, comes back by itself when the link is lost, and shows what the node
sends. It brings a small node to practise with, which needs no network.")

# What Debian wants to know of each version, in the form in which it wants it.
execute_process(COMMAND date --utc --rfc-email --date ${MOLVA_RELEASE_DATE}
                OUTPUT_VARIABLE MOLVA_RELEASE_MOMENT OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
configure_file(changelog.in changelog @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/compress_for_debian.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library tells: the country file, and the plugins that draw the icon.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "hamradio-files, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-jetbrains-mono, qt6-wayland, xdg-utils")
include(CPack)
