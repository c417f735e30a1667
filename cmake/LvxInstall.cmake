# Installs the library for hosts: headers, a CMake package and a pkg-config file. The headers that stand here are
# the library's interface; what is missing here is private.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS lvx owl EXPORT lvxTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT lvxTargets NAMESPACE lvx:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/lvx)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/lvxConfig.cmake.in ${CMAKE_BINARY_DIR}/lvxConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/lvx)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/lvxConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/lvxConfig.cmake ${CMAKE_BINARY_DIR}/lvxConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/lvx)

# Relative, so that it holds wherever the files are installed to in the end.
file(RELATIVE_PATH LVX_PREFIX_FROM_PKGCONFIG
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(${CMAKE_CURRENT_LIST_DIR}/lvx.pc.in ${CMAKE_BINARY_DIR}/lvx.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/lvx.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
