# `cpack` makes one Debian package of each component: cmake --workflow --preset packages
# Included last, so that every component is known.
set(KOVA_PACKAGE_CONTACT "KOVAVSFDataGrid maintainers <maintainers@kovavsfdatagrid.example>"
  CACHE STRING "Who answers for the Debian packages: Name <address>")

set(library_package libkovavsfdatagridlib${PROJECT_VERSION_MAJOR}) # changes with the soname
get_cmake_property(CPACK_COMPONENTS_ALL COMPONENTS)
list(REMOVE_ITEM CPACK_COMPONENTS_ALL Unspecified)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kovavsfdatagrid)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "embeddable SQL result grid for Qt 6")
set(CPACK_PACKAGE_CONTACT "${KOVA_PACKAGE_CONTACT}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The designer plugin uses the library, which is packed beside it and not installed yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)

set(what_it_is "Users reshape a query's result without writing SQL: they choose fields and
sort order, filter, look at single records and step back. Every step is a
derived statement that runs on the database itself.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(control_dir ${PROJECT_BINARY_DIR}/packages/control)
configure_file(${CMAKE_CURRENT_LIST_DIR}/packages/shlibs.in ${control_dir}/shlibs @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/packages/triggers ${control_dir}/triggers COPYONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${control_dir}/shlibs ${control_dir}/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "fonts-noto-cjk, qt6-translations-l10n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "odbc-mariadb, odbc-postgresql")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${what_it_is}
.
This package holds the shared library, and kovagrid, a program to look at
any database with it.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libkovavsfdatagridlib-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}-1), qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_DEV_DESCRIPTION "${what_it_is}
.
This package holds the headers, what CMake and pkg-config need, the
documents for developers, the reference as pages and the examples.")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME kovavsfdatagrid-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}-1)")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_ENHANCES designer-qt6)
set(CPACK_DEBIAN_DESIGNER_DESCRIPTION "${what_it_is}
.
This package lets Qt Designer place the grid on a form, and programs load
such forms at run time.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-kovavsfdatagrid)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
# As packages of other bindings for PyQt6 depend: on Python's and SIP's stable interfaces.
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
  "${library_package} (= ${PROJECT_VERSION}-1), python3 (>= 3.10), python3-pyqt6, python3-pyqt6.sip (>= 13), python3-pyqt6.sip (<< 14)")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS python3-pandas)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "${what_it_is}
.
This package holds the Python module kovavsfdatagrid, with which PyQt6
programs place the grid on their forms.")

# What Debian wants beside the files, compressed as it wants it: licence and history of every package, and the
# program's manual page.
find_program(KOVA_GZIP gzip)
function(kova_install_compressed file folder component)
  if(KOVA_GZIP)
    cmake_path(GET file FILENAME name)
    set(compressed ${PROJECT_BINARY_DIR}/packages/${component}/${name}.gz)
    execute_process(COMMAND ${KOVA_GZIP} -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
  endif()
endfunction()

# Documents: for users with the program, for developers with the headers. Each package has all that its documents
# link to.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc)
set(docs ${PROJECT_SOURCE_DIR}/docs)
set(user_dir ${doc_dir}/${library_package})
set(user_docs kovagrid users shortcuts)
list(TRANSFORM user_docs REPLACE "(.+)" "${docs}/\\1.md;${docs}/\\1.zh-CN.md")
list(APPEND user_docs ${docs}/messages.md ${docs}/messages.en.md ${docs}/databases.md ${docs}/access.md ${docs}/scale.md)
install(FILES ${user_docs} DESTINATION ${user_dir} COMPONENT runtime)
install(FILES ${docs}/images/kovagrid.png ${docs}/images/kovagrid-en.png DESTINATION ${user_dir}/images COMPONENT runtime)
foreach(folder IN ITEMS dialogs dialogs-en)
  install(FILES ${docs}/images/${folder}/ExportDialog.png ${docs}/images/${folder}/PrintPreview.png
    DESTINATION ${user_dir}/images/${folder} COMPONENT runtime)
endforeach()
install(DIRECTORY ${docs}/images/users DESTINATION ${user_dir}/images COMPONENT runtime)
file(GLOB pages CONFIGURE_DEPENDS ${docs}/*.md)
set(dev_dir ${doc_dir}/${CPACK_DEBIAN_DEV_PACKAGE_NAME})
# The release notes under the name that documents link to, and under the one that Debian looks for.
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${dev_dir} COMPONENT dev)
set(changelog ${PROJECT_BINARY_DIR}/packages/dev/changelog)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${changelog} COPYONLY)
kova_install_compressed(${changelog} ${dev_dir} dev)
install(FILES ${pages} DESTINATION ${dev_dir}/docs COMPONENT dev)
install(DIRECTORY ${docs}/images DESTINATION ${dev_dir}/docs COMPONENT dev)
if(TARGET docs) # the preset builds it
  install(DIRECTORY ${KOVA_REFERENCE_DIR} DESTINATION ${dev_dir} COMPONENT dev)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${dev_dir} COMPONENT dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/python/examples DESTINATION ${dev_dir}/python COMPONENT dev)
if(python IN_LIST CPACK_COMPONENTS_ALL)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/python/examples
    DESTINATION ${doc_dir}/${CPACK_DEBIAN_PYTHON_PACKAGE_NAME} COMPONENT python)
endif()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} COMPONENT)
  set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME})
  set(changelog ${PROJECT_BINARY_DIR}/packages/${component}/changelog.Debian)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/packages/changelog.in ${changelog} @ONLY)
  kova_install_compressed(${changelog} ${doc_dir} ${component})
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/packages/copyright DESTINATION ${doc_dir} COMPONENT ${component})
endforeach()
if(TARGET kovagrid)
  kova_install_compressed(${PROJECT_SOURCE_DIR}/apps/kovagrid/assets/kovagrid.1 ${CMAKE_INSTALL_MANDIR}/man1 runtime)
endif()

# The same components as RPM packages, for systems that have these: `cpack -G RPM` in the build folder.
set(CPACK_RPM_COMPONENT_INSTALL ON)
set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_VENDOR KOVAVSFDataGrid)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION # folders of the system
  /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE} /usr/lib/python3 /usr/lib/python3/dist-packages /usr/share/applications
  /usr/share/icons /usr/share/icons/hicolor /usr/share/icons/hicolor/scalable /usr/share/icons/hicolor/scalable/apps
  /usr/share/man /usr/share/man/man1 /usr/share/metainfo)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} COMPONENT)
  set(CPACK_RPM_${COMPONENT}_PACKAGE_NAME ${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME})
  # Debian writes an empty line as a dot.
  string(REPLACE "\n.\n" "\n\n" CPACK_RPM_${COMPONENT}_PACKAGE_DESCRIPTION "${CPACK_DEBIAN_${COMPONENT}_DESCRIPTION}")
  if(NOT component STREQUAL runtime)
    set(CPACK_RPM_${COMPONENT}_PACKAGE_REQUIRES "${library_package} = ${PROJECT_VERSION}-1")
  endif()
endforeach()

include(CPack)
