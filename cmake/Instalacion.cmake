# What `cmake --install` puts where, and the Debian package CPack makes of it:
# the program in bin, its desktop entry, icon and AppStream metadata, the help
# pages where the program looks for them, and the licence.
include(GNUInstallDirs)

set(VANTA_ID io.github.vanta.Vanta)
# Who answers for the package: a routable address, as Debian asks.
set(VANTA_MANTENEDOR "Vanta developers <vanta@users.noreply.github.com>"
    CACHE STRING "Maintainer of the Debian package")
set(VANTA_NOMBRE_MANUAL "ciclos termodinámicos de motores alternativos de cuatro tiempos")
# Where the pictures of the AppStream metadata are published: the docs/
# folder of the repository.
set(VANTA_URL_CAPTURAS "https://raw.githubusercontent.com/vanta/vanta/main/docs"
    CACHE STRING "Address of the folder of the screenshots named in the AppStream metadata")
# The date of this version, for the release entry of the AppStream metadata.
set(VANTA_FECHA_VERSION 2026-11-22)

if(TARGET vanta)
  install(TARGETS vanta RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
# The program of the windows, where vanta looks for it (../lib/vanta beside
# bin), out of the path.
if(TARGET vanta-ventanas)
  install(TARGETS vanta-ventanas RUNTIME DESTINATION lib/vanta)
endif()

# The manual page, made from `vanta --help` and `--version` at each build, so
# that it says what the program says.
if(TARGET vanta)
  set(_manual ${PROJECT_BINARY_DIR}/vanta.1)
  add_custom_command(
    OUTPUT ${_manual}.gz
    COMMAND ${CMAKE_COMMAND} -DPROGRAMA=$<TARGET_FILE:vanta> -DNOMBRE=${VANTA_NOMBRE_MANUAL}
            -DFECHA=${VANTA_FECHA_VERSION} -DSALIDA=${_manual} -P ${PROJECT_SOURCE_DIR}/cmake/Manual.cmake
    COMMAND gzip -9nf ${_manual}
    DEPENDS vanta ${PROJECT_SOURCE_DIR}/cmake/Manual.cmake
    COMMENT "Manual page of vanta from its --help"
    VERBATIM)
  add_custom_target(vanta_manual ALL DEPENDS ${_manual}.gz)
  install(FILES ${_manual}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

# The changelog every Debian package carries, compressed as policy asks.
configure_file(${PROJECT_SOURCE_DIR}/packaging/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)
set(_cambios ${PROJECT_BINARY_DIR}/changelog.gz)
add_custom_command(
  OUTPUT ${_cambios}
  COMMAND gzip -9nkf ${PROJECT_BINARY_DIR}/changelog
  DEPENDS ${PROJECT_BINARY_DIR}/changelog
  VERBATIM)
add_custom_target(vanta_cambios ALL DEPENDS ${_cambios})
install(FILES ${_cambios} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vanta)

# VANTA_DIR_AYUDA and VANTA_PAGINAS_AYUDA come from src/gui/resources/recursos.cmake,
# which also gives the program the same folder to look in.
install(FILES ${VANTA_PAGINAS_AYUDA} DESTINATION ${VANTA_DIR_AYUDA})

install(FILES ${PROJECT_SOURCE_DIR}/packaging/${VANTA_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/src/gui/resources/vanta.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${VANTA_ID}.svg)
configure_file(${PROJECT_SOURCE_DIR}/packaging/${VANTA_ID}.metainfo.xml.in
               ${PROJECT_BINARY_DIR}/${VANTA_ID}.metainfo.xml @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${VANTA_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vanta)

# ---- Debian package ---------------------------------------------------------------
set(CPACK_PACKAGE_NAME vanta)
set(CPACK_PACKAGE_VENDOR "Vanta developers")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "thermodynamic cycles of four-stroke piston engines")
set(CPACK_PACKAGE_DESCRIPTION
    "Vanta computes the Otto, Diesel and dual cycles of four-stroke piston\n\
engines with real gas properties: humid air and combustion gases as\n\
mixtures of six species whose heat capacity, enthalpy and entropy come\n\
from seven-coefficient polynomials. It draws the p-V, T-V, T-s and h-s\n\
diagrams, writes text and HTML reports, keeps results in a SQLite\n\
database and prints property tables. The interface is in Spanish.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/COPYING)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VANTA_MANTENEDOR}")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The shared libraries the program links come from dpkg-shlibdeps; what Qt
# loads at run time must be named: the SQLite and PostgreSQL drivers of the
# results database, the platform plugins that open windows, Qt's own Spanish
# texts, and the opener of the help pages in the browser.
find_program(VANTA_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(VANTA_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6widgets6 (>= 6.4), libqt6printsupport6 (>= 6.4), libqt6sql6 (>= 6.4), libqt6sql6-sqlite (>= 6.4), \
libqt6charts6 (>= 6.4), libqt6svg6 (>= 6.4), libqt6sql6-psql (>= 6.4), qt6-qpa-plugins (>= 6.4), qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core")
include(CPack)
