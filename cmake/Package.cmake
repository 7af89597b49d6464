# What is installed, and the Debian package made of it by ./run --package.
install(TARGETS cibra cibra-archivio RUNTIME DESTINATION bin)
install(FILES packaging/cibra.desktop DESTINATION share/applications)
install(FILES packaging/cibra.metainfo.xml DESTINATION share/metainfo)
install(FILES src/shell/forms/icons/cibra.svg DESTINATION share/icons/hicolor/scalable/apps)
install(DIRECTORY docs/manuale DESTINATION share/doc/cibra)
# The manual shows pictures by their place beside it; those that it does not show stay here.
file(GLOB chapters CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/docs/manuale/*.md")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${chapters})
foreach(chapter IN LISTS chapters)
  file(READ "${chapter}" text)
  string(REGEX MATCHALL "schermate/[^/)]+\\.png" shown "${text}")
  list(APPEND pictures ${shown})
endforeach()
list(REMOVE_DUPLICATES pictures)
list(TRANSFORM pictures PREPEND docs/)
install(FILES ${pictures} DESTINATION share/doc/cibra/schermate)
install(FILES packaging/copyright archive/Fonti.csv CHANGELOG.md DESTINATION share/doc/cibra)

# What goes into the package is built before; making it builds nothing else.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

file(READ "${CMAKE_SOURCE_DIR}/packaging/description.txt" description)
string(STRIP "${description}" description) # an empty line would end the package's description of itself
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cibra)
set(CPACK_PACKAGE_CONTACT "Cibra <cibra@example.org>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "${description}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded while it runs, so that no shared library tells of them: the windows' plug-ins, the Italian words of the toolkit.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, qt6-translations-l10n, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-dejavu-core, xdg-utils")
include(CPack)
