# SPDX-License-Identifier: MIT
# The packages: a .deb of an installed copy, a .tar.gz of a portable one. tools/package.sh makes and checks both.
set(CPACK_PACKAGE_NAME mero)
set(CPACK_PACKAGE_VENDOR "The MERO developers")
set(CPACK_PACKAGE_CONTACT "The MERO developers <maintainers@mero.local>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design of stormwater infiltration facilities")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_THREADS 0)

if(MERO_PORTABLE)
  set(CPACK_GENERATOR TGZ)
  set(CPACK_PACKAGE_FILE_NAME mero-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_PACKAGE_SECTION science)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"MERO sizes facilities that let stormwater soak into the ground: surface
infiltration, swales, swales over trenches, trenches, shafts and tanks. From
the drained areas, the design rain, the filtration coefficient and the
dimensions it computes area, volume, depth and emptying time, judges the
design and writes a report. The program speaks Czech.
.
The package also holds mero-batch, which designs from project files and
computes thousands of variants without a window.
.
The rain data that come with it are demonstration values, no measurements.")
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # Not linked, but needed when running. The plugin for X11 is part of libqt6gui6, which is linked.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "hicolor-icon-theme, fonts-dejavu-core | fonts-liberation | fonts-noto-core")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endif()
include(CPack)
