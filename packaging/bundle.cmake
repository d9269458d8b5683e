# SPDX-License-Identifier: MIT
# Run while the portable copy is installed: copies the libraries that programs and plugins need to lib, and the licences
# of their Debian packages to share/doc/licences.
# Inputs: bundled_programs, bundled_plugins, bundled_texts; CMAKE_INSTALL_PREFIX and DESTDIR as in every install script.

# Libraries of the machine, which are not copied: the C and C++ libraries, the X11 and OpenGL libraries that match its
# drivers, fonts, printing, and their dependencies: the machine's freetype would not work with an older harfbuzz.
set(of_the_machine
  "^ld-linux.*" "^lib(c|m|dl|rt|pthread|resolv|util|gcc_s|stdc\\+\\+)\\.so.*"
  "^lib(GL|EGL|GLX|GLdispatch|OpenGL|drm|gbm)\\.so.*"
  "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|Xext|Xrender|ICE|SM)\\.so.*"
  "^lib(fontconfig|freetype|expat|z|uuid)\\.so.*"
  "^lib(harfbuzz|glib-2\\.0|zstd)\\.so.*"
  "^lib(cups|dbus-1)\\.so.*")

file(GET_RUNTIME_DEPENDENCIES
  RESOLVED_DEPENDENCIES_VAR libraries
  UNRESOLVED_DEPENDENCIES_VAR missing
  EXECUTABLES ${bundled_programs}
  MODULES ${bundled_plugins}
  PRE_EXCLUDE_REGEXES ${of_the_machine})
if(missing)
  message(FATAL_ERROR "not found: ${missing}")
endif()

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
file(MAKE_DIRECTORY "${folder}/lib")
set(origins ${bundled_plugins} ${bundled_texts})
foreach(library IN LISTS libraries)
  file(REAL_PATH ${library} file)
  get_filename_component(name ${library} NAME)
  file(COPY_FILE ${file} "${folder}/lib/${name}")
  list(APPEND origins ${file})
endforeach()

# The package system may list a library's path with or without the leading /usr.
find_program(DPKG_QUERY dpkg-query REQUIRED)
set(packages "")
foreach(file IN LISTS origins)
  string(REGEX REPLACE "^/usr/lib/" "/lib/" short ${file})
  execute_process(COMMAND ${DPKG_QUERY} -S ${file} ${short} OUTPUT_VARIABLE owners ERROR_QUIET)
  if(NOT owners MATCHES "^([^:\n]+):")
    message(FATAL_ERROR "no package owns ${file}")
  endif()
  list(APPEND packages ${CMAKE_MATCH_1})
endforeach()
list(REMOVE_DUPLICATES packages)
list(SORT packages)

set(list "Libraries of Debian in this folder, each with its version and the Debian source package that it was built from.\n")
string(APPEND list "The sources are at https://snapshot.debian.org/ under that name and version. The licence of PACKAGE\n")
string(APPEND list "is PACKAGE.copyright beside this file; texts that it refers to are in common-licenses.\n\n")
file(MAKE_DIRECTORY "${folder}/share/doc/licences")
foreach(package IN LISTS packages)
  execute_process(COMMAND ${DPKG_QUERY} -W -f "\${Package} \${Version}, source \${source:Package} \${source:Version}\n" ${package}
    OUTPUT_VARIABLE line COMMAND_ERROR_IS_FATAL ANY)
  string(APPEND list "${line}")
  file(REAL_PATH /usr/share/doc/${package}/copyright copyright)
  file(COPY_FILE ${copyright} "${folder}/share/doc/licences/${package}.copyright")
endforeach()
file(WRITE "${folder}/share/doc/licences/LIST" "${list}")
foreach(licence Apache-2.0 Artistic GFDL-1.3 GPL-1 GPL-2 GPL-3 LGPL-2 LGPL-2.1 LGPL-3 MPL-1.1 MPL-2.0)
  file(COPY_FILE /usr/share/common-licenses/${licence} "${folder}/share/doc/licences/common-licenses-${licence}")
endforeach()
