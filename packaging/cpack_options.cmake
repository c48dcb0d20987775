# What differs between the packages. CPack reads this once for each of them.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component system)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(component portable)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  # The version is in the folder's name, so that a newer one is not unpacked over a catalogue that is in use.
  set(CPACK_PACKAGE_FILE_NAME "zarvelia-${CPACK_PACKAGE_VERSION}-portable")
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build_folder};zarvelia;${component};/")
