# The target `docs`: the reference as HTML in docs/reference/ of the build folder, made from the public headers.
find_package(Doxygen 1.9)
if(DOXYGEN_FOUND)
  set(KOVA_REFERENCE_DIR ${PROJECT_BINARY_DIR}/docs/reference)
  get_target_property(inputs kova_public_headers HEADER_SET)
  list(PREPEND inputs ${PROJECT_SOURCE_DIR}/docs/reference.md ${PROJECT_SOURCE_DIR}/docs/shortcuts.md
    ${PROJECT_SOURCE_DIR}/docs/gallery.md)
  list(TRANSFORM inputs REPLACE "(.+)" "\"\\1\"" OUTPUT_VARIABLE quoted)
  list(JOIN quoted " " KOVA_REFERENCE_INPUT)
  configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
  # Pages of what is gone don't stay.
  add_custom_target(docs
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${KOVA_REFERENCE_DIR}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KOVA_REFERENCE_DIR}
    COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile
    COMMENT "The reference in ${KOVA_REFERENCE_DIR}/index.html"
    VERBATIM)
endif()
