# `cmake --build --preset coverage --target coverage` runs the tests and prints what they reach.

# kova_coverage(<name> TEST <test program> FOLDER <folder below the project>)
#
# A target that runs one test program and prints line and branch coverage of one folder; `coverage` makes all of
# them. Branches that only an exception or a broken assertion can take don't count.
function(kova_coverage name)
  cmake_parse_arguments(COVERAGE "" "TEST;FOLDER" "" ${ARGN})
  if(NOT KOVA_COVERAGE)
    return()
  endif()
  find_program(KOVA_GCOVR gcovr)
  if(NOT KOVA_GCOVR)
    message(STATUS "Without gcovr there is no target that prints coverage")
    return()
  endif()
  get_filename_component(folder ${PROJECT_SOURCE_DIR}/${COVERAGE_FOLDER} REALPATH)
  add_custom_target(${name}
    COMMAND ${KOVA_GCOVR} --delete --root ${folder} --object-directory ${PROJECT_BINARY_DIR} --output /dev/null
            ${PROJECT_BINARY_DIR}
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
            $<TARGET_FILE:${COVERAGE_TEST}> --gtest_brief=1
    COMMAND ${KOVA_GCOVR} --root ${folder} --filter ${folder}/ --branches --exclude-throw-branches
            --exclude-unreachable-branches --exclude-lines-by-pattern ".*Q_ASSERT.*" --print-summary ${PROJECT_BINARY_DIR}
    COMMENT "Coverage of ${COVERAGE_FOLDER}"
    USES_TERMINAL VERBATIM)
  add_dependencies(${name} ${COVERAGE_TEST})
  if(NOT TARGET coverage)
    add_custom_target(coverage)
  endif()
  add_dependencies(coverage ${name})
endfunction()
