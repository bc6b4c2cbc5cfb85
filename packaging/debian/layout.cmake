# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Run by CPack on the installed files before it packs them: what Debian has in other places or compresses.
set(programs ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/programs/usr/share)
set(development ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/development/usr/share)

# zsh of Debian looks here only.
file(RENAME ${programs}/zsh/site-functions ${programs}/zsh/vendor-completions)

file(RENAME ${programs}/doc/bom/CHANGELOG.md ${programs}/doc/bom/changelog)
file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/changelog ${programs}/doc/bom/changelog.Debian)
file(MAKE_DIRECTORY ${development}/doc/bom-dev)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${development}/doc/bom-dev)
file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/changelog ${development}/doc/bom-dev/changelog.Debian)
file(GLOB pages ${programs}/man/man1/*.1)
foreach(file ${pages} ${programs}/doc/bom/changelog ${programs}/doc/bom/changelog.Debian
             ${development}/doc/bom-dev/changelog.Debian)
  execute_process(COMMAND gzip -9n ${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
