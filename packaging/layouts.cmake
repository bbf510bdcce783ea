# Read by CPack once for each kind of package: the archive is the portable folder, the Debian package the layout of the
# system and what Debian wants besides.
set(installed "${CPACK_INSTALL_CMAKE_PROJECTS}")
if(CPACK_GENERATOR STREQUAL "ZIP")
  string(REPLACE ";ALL;" ";portable;" CPACK_INSTALL_CMAKE_PROJECTS "${installed}")
elseif(CPACK_GENERATOR STREQUAL "DEB")
  string(REPLACE ";ALL;" ";debian;" debian "${installed}")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${installed};${debian}")
endif()
