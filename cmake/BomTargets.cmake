# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# One library per folder, one test program per library: a test program links its own library and what that may use.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# Programs find the libraries from where they stand themselves, libraries the ones beside them.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${BOM_LIBRARIES}")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Paths below the source folder count as relative, so that another checkout of the same sources is a hit.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
                                  ${CCACHE_PROGRAM})
endif()

add_compile_options(-Wall -Wextra -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # It sees overlaps where a string takes a short literal, https://gcc.gnu.org/bugzilla/show_bug.cgi?id=105651
  add_compile_options($<$<CONFIG:Release>:-Wno-restrict>)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(BOM_SANITIZE)
  if(BOM_SANITIZE STREQUAL "THREADS")
    set(sanitizers thread)
  else()
    set(sanitizers address,undefined)
  endif()
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()

# bom_precompile(TARGET HEADER KIND): where BOM_PCH is ON, or TESTS and that is the KIND, saves a third of the compile time of
# a target with several sources, half of that of tests. The compiler cache does better where it is warm. A source that lacks
# an include compiles nevertheless, so something must be built without.
function(bom_precompile target header kind)
  if(NOT BOM_PCH OR (BOM_PCH STREQUAL "TESTS" AND NOT kind STREQUAL "TESTS"))
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  list(LENGTH sources count)
  if(count GREATER 4)
    target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/${header})
  endif()
endfunction()

# bom_sources(OUT): every source and header below the current folder.
function(bom_sources out)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# bom_library(NAME [SHARED [FOR_HOSTS]] LINKS targets...): the library of the current folder. FOR_HOSTS: other programs link
# it, too, as Bom::NAME of the CMake package "Bom".
function(bom_library name)
  cmake_parse_arguments(arg "SHARED;FOR_HOSTS" "" "LINKS;SOURCES" ${ARGN})
  set(kind STATIC)
  if(arg_SHARED)
    set(kind SHARED)
  endif()
  if(NOT arg_SOURCES)
    bom_sources(arg_SOURCES)
  endif()
  add_library(${name} ${kind} ${arg_SOURCES})
  if(arg_SHARED)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN")
    set(export)
    if(arg_FOR_HOSTS)
      set(export EXPORT Bom)
      target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:${BOM_HEADERS}>)
      target_compile_features(${name} INTERFACE cxx_std_20)
    endif()
    install(TARGETS ${name} ${export} DESTINATION ${BOM_LIBRARIES})
  endif()
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  bom_precompile(${name} corepch.h PRODUCT)
endfunction()

# bom_printed_file(PROGRAM ARGUMENTS FOLDER NAME): a file that the program prints with these arguments, made with the program
# and installed in that folder below share. It is in English, whatever the language of the machine.
function(bom_printed_file program arguments folder name)
  # A sanitizer that finds a leak of a library would end the build; such a build is not installed.
  if(BOM_SANITIZE)
    return()
  endif()
  set(file ${CMAKE_BINARY_DIR}/share/${folder}/${name})
  get_filename_component(place ${file} DIRECTORY)
  add_custom_command(OUTPUT ${file} COMMAND ${CMAKE_COMMAND} -E make_directory ${place}
                     COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 $<TARGET_FILE:${program}> ${arguments} > ${file} DEPENDS ${program} VERBATIM)
  add_custom_target(${program}_${name} ALL DEPENDS ${file})
  install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder})
endfunction()

# bom_test(FOLDER [WIDGETS] LINKS targets...): the test program of one folder, run with Qt's hash seed fixed and with a random one
# (Qt 6 takes no other), so that an order that comes from hashing shows as a failure. WIDGETS gives it an application.
function(bom_test folder)
  cmake_parse_arguments(arg "WIDGETS" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp
                                              ${CMAKE_SOURCE_DIR}/tests/${folder}/*.h)
  if(NOT sources)
    return()
  endif()
  if(arg_WIDGETS)
    list(APPEND sources ${CMAKE_SOURCE_DIR}/tests/support/widgetmain.cpp)
    list(APPEND arg_LINKS Qt6::Widgets Qt6::Test GTest::gtest)
  else()
    list(APPEND arg_LINKS GTest::gtest_main)
  endif()
  add_executable(${folder}_test ${sources})
  target_include_directories(${folder}_test PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests
                                                     ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${folder}_test PRIVATE ${arg_LINKS} GTest::gmock)
  bom_precompile(${folder}_test testpch.h TESTS)
  set(environment "QT_QPA_PLATFORM=set:offscreen" "TZ=set:UTC" "LC_ALL=set:C.UTF-8")
  add_test(NAME ${folder} COMMAND ${folder}_test)
  set_tests_properties(${folder} PROPERTIES ENVIRONMENT_MODIFICATION "${environment};QT_HASH_SEED=set:0")
  add_test(NAME ${folder}_random_seed COMMAND ${folder}_test)
  set_tests_properties(${folder}_random_seed PROPERTIES ENVIRONMENT_MODIFICATION
                       "${environment};QT_HASH_SEED=unset:")
endfunction()
