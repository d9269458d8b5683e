# SPDX-License-Identifier: MIT
# The portable copy: one folder, which is also the program's folder. Qt and its dependencies are in lib, found by
# a relative run path; libraries that every desktop has (C and C++ library, X11, OpenGL, fonts) are not included.
set(RPATH_PROGRAMS mero mero-batch)
set_target_properties(${RPATH_PROGRAMS} PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
foreach(program IN LISTS RPATH_PROGRAMS)
  # DT_RPATH, the older of the two tags, also applies to libraries loaded by other libraries and plugins.
  target_link_options(${program} PRIVATE -Wl,--disable-new-dtags)
endforeach()

install(TARGETS ${RPATH_PROGRAMS} RUNTIME DESTINATION .)
install(FILES ${CMAKE_SOURCE_DIR}/data/mero.mdb qt.conf ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION .)
install(FILES portable.md DESTINATION . RENAME README.md)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/Webs ${CMAKE_SOURCE_DIR}/examples DESTINATION .)
install(FILES icons/scalable/apps/mero.svg icons/256x256/apps/mero.png mero.desktop mero-project.xml DESTINATION share)
file(GLOB man_pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/man/*.1)
install(FILES ${man_pages} DESTINATION share/man)
install(FILES ${CMAKE_SOURCE_DIR}/docs/licences.md ${CMAKE_SOURCE_DIR}/docs/project-file.md
  ${CMAKE_SOURCE_DIR}/docs/project-file.schema.json DESTINATION share/doc)
install(FILES ${CMAKE_SOURCE_DIR}/data/README.md DESTINATION share/doc RENAME rain-data.md)
foreach(document CHANGELOG.md docs/prirucka.md)
  if(EXISTS ${CMAKE_SOURCE_DIR}/${document})
    install(FILES ${CMAKE_SOURCE_DIR}/${document} DESTINATION share/doc)
  endif()
endforeach()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/pictures DESTINATION share/doc)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
set(qt_plugins ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS})
set(plugins
  platforms/libqxcb.so
  platforms/libqoffscreen.so
  imageformats/libqgif.so
  imageformats/libqjpeg.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  printsupport/libcupsprintersupport.so
  xcbglintegrations/libqxcb-glx-integration.so)
foreach(plugin IN LISTS plugins)
  get_filename_component(folder ${plugin} DIRECTORY)
  install(FILES ${qt_plugins}/${plugin} DESTINATION plugins/${folder})
endforeach()
find_file(QT_CZECH_TEXTS qtbase_cs.qm PATHS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS} NO_DEFAULT_PATH REQUIRED)
install(FILES ${QT_CZECH_TEXTS} DESTINATION translations)

list(TRANSFORM plugins PREPEND ${qt_plugins}/ OUTPUT_VARIABLE plugin_files)
install(CODE "
  set(bundled_programs \"$<TARGET_FILE:mero>;$<TARGET_FILE:mero-batch>\")
  set(bundled_plugins \"${plugin_files}\")
  set(bundled_texts \"${QT_CZECH_TEXTS}\")")
install(SCRIPT bundle.cmake)
