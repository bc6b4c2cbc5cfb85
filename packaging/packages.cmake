# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# The packages for Debian and its kin, made by scripts/package: "bom", and "bom-dev" for who builds hosts.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL programs development)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/layout.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/withoutscripts.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE bom)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME bom)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME bom-dev)

# Version and maintainer are those of the last entry of the package's own list of changes.
file(READ debian/changelog changes)
if(NOT changes MATCHES "^bom \\(${PROJECT_VERSION}-([^)]+)\\).*\n -- ([^>\n]+>)  ")
  message(FATAL_ERROR "packaging/debian/changelog does not begin with an entry of version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
set(CPACK_PACKAGE_CONTACT ${CMAKE_MATCH_2})

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION "bill of materials from KiCad designs
BOM makes a bill of materials from an electronic design: KiCad schematics
of versions 6 to 10 and CSV part lists. It sorts parts into categories,
groups them into lines and says where every symbol of the drawing stayed.
.
The package has the program bom for the command line, the desktop program
bomviewer, and the module with which other programs show the report.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "bill of materials from KiCad designs - headers for hosts
A program that knows an electronic design can load the module of BOM and
have it show, edit and print the bill of materials. This package has the
headers and the CMake package with which such a host is built.")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# What no library asks for: a font for PDF files, icons above the program's own, Qt's platforms and texts, a screen to show
# parts on.
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "fonts-liberation, hicolor-icon-theme, qt6-svg-plugins | libqt6svg6 (<< 6.5~)")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS "qt6-qpa-plugins, qt6-wayland, qt6-translations-l10n, shared-mime-info")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SUGGESTS kicad)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS programs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS qt6-base-dev)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
