# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Run by CPack on finished packages: takes away the scripts that CPack adds for libraries below /usr/lib. They have the system's
# linker look for new libraries, and it does not find those in /usr/lib/bom, which are ours alone.
foreach(package ${CPACK_PACKAGE_FILES})
  set(tree ${CPACK_TEMPORARY_DIRECTORY}/unpacked)
  file(REMOVE_RECURSE ${tree})
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${tree}/DEBIAN/postinst ${tree}/DEBIAN/postrm)
  execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build ${tree} ${package} OUTPUT_QUIET
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()
