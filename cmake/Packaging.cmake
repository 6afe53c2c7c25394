# Debian packages: "waymark" holds the programs, "waymark-dev" what plug-ins are made with. `cpack -G DEB` in the build
# folder makes both; `./test --package` also tries them in a system of their own.
set(CPACK_PACKAGE_NAME waymark)
set(CPACK_PACKAGE_VENDOR "The Waymark developers")
# A stand-in: who gives packages to others puts an address of their own here.
set(CPACK_PACKAGE_CONTACT "The Waymark developers <waymark@example.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL waymark waymark-dev)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_WAYMARK_PACKAGE_NAME waymark)
set(CPACK_DEBIAN_WAYMARK_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_WAYMARK_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENT_WAYMARK_DESCRIPTION "geotag photos from GPS tracks and edit their metadata
Waymark matches photos against the tracks of a GPS receiver and writes where
each was taken into the photo or an XMP sidecar beside it. It edits captions,
keywords, people and dates of many photos at once, and finds the names of
places without a network.
.
Photos are written in one step: a photo holds what it held before or its new
version as a whole. The command line waymark-cli does the same work.")
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_NAME waymark-dev)
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_DEPENDS qt6-base-dev)
set(CPACK_DEBIAN_WAYMARK-DEV_PACKAGE_ENHANCES waymark)
set(CPACK_COMPONENT_WAYMARK-DEV_DESCRIPTION "headers for export plug-ins of Waymark
Photos leave Waymark through export plug-ins. This package holds the headers
that plug-ins are made with, what CMake has to know to find them, and the
guide that explains them.")

# The packages of scripts/packages.txt that the program needs when it runs.
file(STRINGS ${CMAKE_SOURCE_DIR}/scripts/packages.txt needed REGEX "^run ")
list(TRANSFORM needed REPLACE "^run +([^ ]+).*" "\\1")
list(JOIN needed ", " CPACK_DEBIAN_WAYMARK_PACKAGE_DEPENDS)

# What Debian wants in /usr/share/doc of each package.
set(packages ${CMAKE_BINARY_DIR}/packages)
file(WRITE ${packages}/copyright "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: Waymark

Files: *
Copyright: 2026 The Waymark developers
License: GPL-3+
 This program is free software: you can redistribute it and/or modify it under
 the terms of the GNU General Public License as published by the Free Software
 Foundation, either version 3 of the License, or (at your option) any later
 version.
 .
 On Debian systems, the full text of version 3 of the License is in the file
 /usr/share/common-licenses/GPL-3. The sources of data that come with the
 program, and their terms, are in /usr/share/waymark/data/credits.txt.
")
file(WRITE ${packages}/changelog "waymark (${PROJECT_VERSION}-1) stable; urgency=medium

  * Initial release; CHANGELOG.md of the project tells what is in it.

 -- The Waymark developers <waymark@example.org>  Wed, 25 Nov 2026 12:00:00 +0000
")
find_program(WAYMARK_GZIP gzip REQUIRED)
execute_process(COMMAND ${WAYMARK_GZIP} -9nkf ${packages}/changelog COMMAND_ERROR_IS_FATAL ANY)
foreach(package waymark waymark-dev)
    install(FILES ${packages}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package})
    install(FILES ${packages}/changelog.gz RENAME changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package})
endforeach()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/guide DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/waymark)
install(FILES ${CMAKE_SOURCE_DIR}/docs/plugins.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/waymark-dev
    COMPONENT waymark-dev)

include(CPack)
