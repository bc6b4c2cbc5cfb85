# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Where everything is installed. Programs, libraries and example designs find each other by their places below the prefix, so
# that the tree can be moved: these places are fixed. What other programs look for follows GNUInstallDirs.
# Included before the rules of the folders, because it has something done before them.
include(GNUInstallDirs)

set(BOM_PROGRAMS bin)
set(BOM_LIBRARIES lib/bom)
set(BOM_EXAMPLES share/bom/examples)
set(BOM_GUIDE share/bom/guide)
set(BOM_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/bom)
set(BOM_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/Bom)

# "programs" is what people use, "development" what hosts of the module are built with.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME programs)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)

# The folders that an installation may make; those that it does make are noted for the target "uninstall".
set(bomFolders ${BOM_PROGRAMS} ${BOM_LIBRARIES} ${BOM_EXAMPLES} ${BOM_GUIDE}/de ${BOM_GUIDE}/pictures ${BOM_HEADERS} ${BOM_CMAKE}
               ${CMAKE_INSTALL_DOCDIR})
foreach(folder man/man1 applications metainfo mime/packages icons/hicolor/scalable/apps icons/hicolor/48x48/apps
               icons/hicolor/128x128/apps bash-completion/completions zsh/site-functions fish/vendor_completions.d)
  list(APPEND bomFolders ${CMAKE_INSTALL_DATADIR}/${folder})
endforeach()
set(bomManifest ${CMAKE_BINARY_DIR}/install_manifest.txt)
set(bomNewFolders ${CMAKE_BINARY_DIR}/install_folders.txt)
# Of a component of its own, so that making packages notes nothing.
install(CODE "set(BOM_FOLDERS \"${bomFolders}\")\nset(BOM_NEW_FOLDERS \"${bomNewFolders}\")" COMPONENT folders)
install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/notefolders.cmake COMPONENT folders)

add_custom_target(uninstall COMMENT "Removing what was installed last" VERBATIM
                  COMMAND ${CMAKE_COMMAND} -D MANIFEST=${bomManifest} -D NEW_FOLDERS=${bomNewFolders}
                          -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake)
