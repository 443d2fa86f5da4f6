# What `cmake --install` lays down: the library, its public headers and the CMake package.
include(CMakePackageConfigHelpers)

install(TARGETS KOVAVSFDataGridLib EXPORT KOVAVSFDataGridLibTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KOVAVSFDataGridLib)
install(FILES ${PROJECT_SOURCE_DIR}/include/KOVAVSFDataGrid
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KOVAVSFDataGridLib)
foreach(header IN LISTS KOVA_PUBLIC_HEADERS)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${PROJECT_SOURCE_DIR}/src/${header}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KOVAVSFDataGridLib/${folder})
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KOVAVSFDataGridLib)
install(EXPORT KOVAVSFDataGridLibTargets NAMESPACE KOVAVSFDataGridLib:: DESTINATION ${package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/KOVAVSFDataGridLibConfig.cmake.in
  ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfig.cmake
  ${PROJECT_BINARY_DIR}/KOVAVSFDataGridLibConfigVersion.cmake DESTINATION ${package_dir})
if(TARGET kovagrid)
  set_target_properties(kovagrid PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS kovagrid RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
