# The Debian package that cpack makes of an installation (preset `package`).

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tavlora)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tavlora developers <developers@tavlora.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

# Below any revision that Debian itself would give this version.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0upstream1)
find_program(DPKG_PROGRAM dpkg)
if(DPKG_PROGRAM)
    execute_process(COMMAND ${DPKG_PROGRAM} --print-architecture
                    OUTPUT_VARIABLE CPACK_DEBIAN_PACKAGE_ARCHITECTURE
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()
string(JOIN _ CPACK_DEBIAN_FILE_NAME tavlora ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}
       ${CPACK_DEBIAN_PACKAGE_ARCHITECTURE}.deb)
set_property(GLOBAL PROPERTY DRAUGHTS_DEB ${CPACK_DEBIAN_FILE_NAME})
set(CPACK_DEBIAN_PACKAGE_SECTION games)
# What the program is linked with is what the package depends on. Without dpkg-shlibdeps cpack would
# make one that depends on nothing.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib) # the engine
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/PackageNeeds.cmake)
# A desktop has fonts, and those on Wayland the plugin for it; the game shows itself on X11 without.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core | fonts-liberation, qt6-wayland")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "draughts against the computer or another person")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"One person plays draughts (checkers) against the computer, two people play
on one board, or the computer plays both sides, in a small window.
.
International, American and traditional Polish rules, on boards of 6x6,
8x8, 10x10 and 12x12 squares; eight levels; and on request the aim of giving
all pieces away. The game can be stepped back and forward and played on from
any earlier position.")

include(CPack)
