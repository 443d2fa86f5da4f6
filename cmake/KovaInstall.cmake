# What `cmake --install` lays down, in components that are also the Debian packages:
#   runtime   the library and the host program with its desktop entry
#   dev       the public headers and what CMake and pkg-config need to find the library
#   designer  the form editor's plugin, declared where the plugin is built
#   python    the Python package, declared where it is built
include(CMakePackageConfigHelpers)

set(KOVA_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/KOVAVSFDataGridLib)

install(TARGETS KOVAVSFDataGridLib EXPORT KOVAVSFDataGridLibTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
  INCLUDES DESTINATION ${KOVA_INSTALL_INCLUDEDIR})

# <KOVAVSFDataGrid>, and the other public headers in a folder of their own beside it.
install(FILES ${PROJECT_SOURCE_DIR}/include/KOVAVSFDataGrid DESTINATION ${KOVA_INSTALL_INCLUDEDIR} COMPONENT dev)
install(TARGETS kova_public_headers
  FILE_SET HEADERS DESTINATION ${KOVA_INSTALL_INCLUDEDIR}/KOVAVSFDataGridLib COMPONENT dev)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KOVAVSFDataGridLib)
install(EXPORT KOVAVSFDataGridLibTargets NAMESPACE KOVAVSFDataGridLib:: DESTINATION ${package_dir} COMPONENT dev)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/KOVAVSFDataGridLibConfig.cmake.in
  ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfig.cmake
  ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfigVersion.cmake DESTINATION ${package_dir} COMPONENT dev)

# The prefix is found from the place of the .pc file, so that an installation can be moved.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir} OUTPUT_VARIABLE KOVA_PREFIX_FROM_PC)
configure_file(${CMAKE_CURRENT_LIST_DIR}/KOVAVSFDataGridLib.pc.in
  ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLib.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLib.pc DESTINATION ${pkgconfig_dir} COMPONENT dev)

if(TARGET kovagrid)
  set_target_properties(kovagrid PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS kovagrid RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  set(assets ${PROJECT_SOURCE_DIR}/apps/kovagrid/assets)
  install(FILES ${assets}/kovagrid.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT runtime)
  install(FILES ${assets}/example.kovavsfdatagrid.kovagrid.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT runtime)
  install(FILES ${assets}/kovagrid.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT runtime)
endif()
