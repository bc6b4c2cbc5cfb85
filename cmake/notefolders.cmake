# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Run before anything is installed: adds to the list BOM_NEW_FOLDERS those of the BOM_FOLDERS, and of the folders above them,
# that are not there. A second installation into the same place finds them there, and the list stays.
cmake_policy(VERSION 3.25)
set(known)
if(EXISTS ${BOM_NEW_FOLDERS})
  file(STRINGS ${BOM_NEW_FOLDERS} known)
endif()
# Relative places count from the folder that CMake was started in.
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX OUTPUT_VARIABLE prefix)
foreach(folder ${BOM_FOLDERS})
  cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY "${prefix}")
  set(place "$ENV{DESTDIR}${folder}")
  cmake_path(ABSOLUTE_PATH place)
  while(NOT IS_DIRECTORY "${place}" AND NOT place IN_LIST known)
    list(APPEND known "${place}")
    cmake_path(GET place PARENT_PATH place)
  endwhile()
endforeach()
list(JOIN known "\n" text)
file(WRITE ${BOM_NEW_FOLDERS} "${text}\n")
