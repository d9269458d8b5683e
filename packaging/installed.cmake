# SPDX-License-Identifier: MIT
# An installed copy. The programs find their files by relative paths, so the prefix may be moved: program_folder.cpp uses
# ../share/mero and ../libexec/mero.
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATAROOTDIR})
set(doc ${share}/doc/mero)

install(TARGETS mero mero-batch RUNTIME DESTINATION bin)

install(FILES ${CMAKE_SOURCE_DIR}/data/mero.mdb DESTINATION ${share}/mero)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/Webs ${CMAKE_SOURCE_DIR}/examples DESTINATION ${share}/mero)

install(DIRECTORY icons/ DESTINATION ${share}/icons/hicolor)
install(FILES mero.desktop DESTINATION ${share}/applications)
install(FILES mero-project.xml DESTINATION ${share}/mime/packages)
install(FILES local.mero.mero.metainfo.xml DESTINATION ${share}/metainfo)

# Compressed as distributions require: with the best compression and without a time stamp.
find_program(GZIP gzip REQUIRED)
function(install_compressed file folder name)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND ${GZIP} -9nc ${file} > ${compressed}
    DEPENDS ${file}
    VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()

file(GLOB man_pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/man/*.1)
foreach(page IN LISTS man_pages)
  get_filename_component(name ${page} NAME)
  install_compressed(${page} ${CMAKE_INSTALL_MANDIR}/man1 ${name})
endforeach()

if(EXISTS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
  configure_file(${CMAKE_SOURCE_DIR}/CHANGELOG.md ${CMAKE_CURRENT_BINARY_DIR}/changelog COPYONLY)
  install_compressed(${CMAKE_CURRENT_BINARY_DIR}/changelog ${doc} changelog)
endif()
install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog ${doc} changelog.Debian)
install(FILES debian/copyright DESTINATION ${doc})
install(FILES ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/docs/licences.md
  ${CMAKE_SOURCE_DIR}/docs/project-file.md ${CMAKE_SOURCE_DIR}/docs/project-file.schema.json
  DESTINATION ${doc})
install(FILES ${CMAKE_SOURCE_DIR}/data/README.md DESTINATION ${doc} RENAME rain-data.md)
if(EXISTS ${CMAKE_SOURCE_DIR}/docs/prirucka.md)
  install(FILES ${CMAKE_SOURCE_DIR}/docs/prirucka.md DESTINATION ${doc})
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/pictures DESTINATION ${doc})
endif()
install(FILES debian/lintian-overrides DESTINATION ${share}/lintian/overrides RENAME mero)
