# How every target of this project is compiled, and what a "room" is.

# Language level, warnings, visibility and instrumentation: one place for all targets.
function(kova_compile_settings target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
  # Between sizes and numbers of fixed width, 32 bits would want casts where 64 bits must have none, and the
  # other way round. The sources are right for 64.
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(conversions -Wconversion -Wsign-conversion)
    set(useless_casts $<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast>)
  endif()
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic ${conversions} -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wnull-dereference -Wformat=2
    -Wimplicit-fallthrough -Wextra-semi -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wduplicated-branches> ${useless_casts}
    $<$<BOOL:${KOVA_WARNINGS_AS_ERRORS}>:-Werror>)
  # 32-bit compilers calculate with more digits than a double keeps, in some places. Sums and comparisons must not
  # depend on that. Every Windows that Qt supports needs a processor with SSE2 too.
  if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR STREQUAL i686)
    target_compile_options(${target} PRIVATE -msse2 -mfpmath=sse)
  endif()
  # A fault in memory ends the program rather than running what somebody put there. Sanitizers look closer. Without
  # -fcf-protection: it does nothing in a process whose C library lacks it, as Debian's does.
  if(CMAKE_SYSTEM_NAME STREQUAL Linux AND NOT KOVA_SANITIZE AND NOT KOVA_COVERAGE)
    target_compile_options(${target} PRIVATE -fstack-protector-strong
      $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>) # which only works when optimizing
    target_link_options(${target} PRIVATE -Wl,-z,relro,-z,now)
  endif()
  if(KOVA_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${KOVA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
      # False with what the sanitizers add, as in an assignment to an empty std::optional.
      $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(${target} PUBLIC -fsanitize=${KOVA_SANITIZE})
  endif()
  if(KOVA_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
    target_link_options(${target} PUBLIC --coverage)
  endif()
endfunction()

# kova_precompile(<target> core|widgets|tests): the headers that most sources of such a target include, precompiled
# once for all targets of its kind. Only these: the whole of Qt takes longer to load than most sources take to compile.
set(kova_headers_core
  <QtCore/QDateTime> <QtCore/QHash> <QtCore/QList> <QtCore/QObject> <QtCore/QPointer> <QtCore/QString>
  <QtCore/QStringList> <QtCore/QVariant> <algorithm> <functional> <memory> <optional> <vector>)
set(kova_headers_widgets ${kova_headers_core}
  <QtGui/QKeyEvent> <QtGui/QPainter> <QtWidgets/QBoxLayout> <QtWidgets/QDialog> <QtWidgets/QHeaderView>
  <QtWidgets/QLabel> <QtWidgets/QLineEdit> <QtWidgets/QPushButton> <QtWidgets/QTableView>)
set(kova_headers_tests ${kova_headers_widgets} <QtWidgets/QApplication> <QtWidgets/QMenu> <gtest/gtest.h>)

function(kova_precompile target kind)
  set(carrier kova_precompiled_${kind})
  if(NOT TARGET ${carrier})
    set(libraries Qt6::Core)
    if(NOT kind STREQUAL core)
      list(APPEND libraries Qt6::Widgets)
    endif()
    if(kind STREQUAL tests)
      list(APPEND libraries GTest::gtest) # not Qt6::Test, whose definitions differ from target to target
    endif()
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${carrier}.cpp CONTENT "")
    add_library(${carrier} OBJECT ${PROJECT_BINARY_DIR}/${carrier}.cpp)
    kova_compile_settings(${carrier})
    set_target_properties(${carrier} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_link_libraries(${carrier} PRIVATE ${libraries})
    target_precompile_headers(${carrier} PRIVATE ${kova_headers_${kind}})
    if(kind STREQUAL tests)
      kova_quick_compile(${carrier}) # with the same options as what uses it
    endif()
  endif()
  target_precompile_headers(${target} REUSE_FROM ${carrier})
endfunction()

# kova_may_use(<folder> <libraries>)
#
# Notes what a folder links, for the test of the includes; kova_write_links() writes it down.
function(kova_may_use folder)
  list(JOIN ARGN " " links)
  set_property(GLOBAL APPEND_STRING PROPERTY KOVA_LINKS "${folder}: ${links}\n")
endfunction()

function(kova_write_links file)
  get_property(links GLOBAL PROPERTY KOVA_LINKS)
  get_target_property(headers kova_public_headers HEADER_SET)
  list(TRANSFORM headers REPLACE "^${PROJECT_SOURCE_DIR}/src/" "")
  list(JOIN headers " " headers)
  file(CONFIGURE OUTPUT ${file} CONTENT "${links}public headers: ${headers}\n" @ONLY)
endfunction()

# kova_room(<name> SOURCES <files> [PUBLIC_HEADERS <files>] LINKS <libraries>)
#
# One folder below src/ as an object library `kova_<name>`. What a room does not list in LINKS it can't use: Qt
# modules and other libraries come from LINKS alone, and a test checks the includes. PUBLIC_HEADERS are those that a
# host can include; they are installed.
function(kova_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;PUBLIC_HEADERS;LINKS" ${ARGN})
  set(target kova_${name})
  add_library(${target} OBJECT ${ROOM_SOURCES})
  kova_compile_settings(${target})
  target_compile_definitions(${target} PRIVATE KOVAVSFDataGridLib_EXPORTS)
  target_include_directories(${target} PUBLIC
    ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/include)
  target_link_libraries(${target} PUBLIC ${ROOM_LINKS})
  kova_may_use(src/${name} ${ROOM_LINKS})
  set(rests_on ${ROOM_LINKS})
  list(FILTER rests_on INCLUDE REGEX "^kova_")
  set_target_properties(${target} PROPERTIES KOVA_RESTS_ON "${rests_on}")
  if(ROOM_PUBLIC_HEADERS)
    target_sources(kova_public_headers INTERFACE FILE_SET HEADERS FILES ${ROOM_PUBLIC_HEADERS})
  endif()
  if(Qt6::Widgets IN_LIST ROOM_LINKS)
    kova_precompile(${target} widgets)
  else()
    kova_precompile(${target} core)
  endif()
  kova_unite(${target} 32)
endfunction()

# kova_rooms_below(<variable> <room>...): the object libraries of these rooms and of all rooms they rest on.
# Linking an object library brings in its own objects only.
function(kova_rooms_below variable)
  set(found "")
  list(TRANSFORM ARGN PREPEND kova_ OUTPUT_VARIABLE open)
  while(open)
    list(POP_FRONT open room)
    if(NOT room IN_LIST found)
      list(APPEND found ${room})
      get_target_property(below ${room} KOVA_RESTS_ON)
      list(APPEND open ${below})
    endif()
  endwhile()
  set(${variable} ${found} PARENT_SCOPE)
endfunction()

# kova_program(<name> SOURCES <files> [ROOMS <rooms>] [LINKS <libraries>]): an executable under the same settings,
# with these rooms and all they rest on compiled in.
function(kova_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;ROOMS;LINKS" ${ARGN})
  kova_rooms_below(rooms ${PROGRAM_ROOMS})
  add_executable(${name} ${PROGRAM_SOURCES})
  kova_compile_settings(${name})
  kova_unite(${name} 16)
  target_link_libraries(${name} PRIVATE ${rooms} ${PROGRAM_LINKS})
endfunction()

# kova_unite(<target> <number>): with KOVA_QUICK_BUILD, so many sources are compiled at a time, because most of the time goes
# into headers and templates that all of them use. GCC clears up its memory only when it has used a gigabyte, because
# looking for what is not needed takes longer than it saves.
function(kova_unite target number)
  set_target_properties(${target} PROPERTIES UNITY_BUILD "${KOVA_QUICK_BUILD}" UNITY_BUILD_BATCH_SIZE ${number})
  # GCC takes a source among others for a header, where an unnamed namespace would be a mistake.
  target_compile_options(${target} PRIVATE
    "$<$<AND:$<BOOL:${KOVA_QUICK_BUILD}>,$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage;--param=ggc-min-heapsize=1000000>")
endfunction()

# kova_quick_compile(<target> [<files>]): compiles the sources of tests quickly; there are as many as of the library.
# The given files are compiled alone, because they define names that others define too. A developer's build does not
# optimize tests: what takes time in a test is the library, which is optimized.
function(kova_quick_compile target)
  kova_unite(${target} 40)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  target_compile_options(${target} PRIVATE
    "$<$<CONFIG:RelWithDebInfo>:SHELL:-O0 -U_FORTIFY_SOURCE>") # which only works when optimizing
endfunction()

# kova_test(<name> SOURCES <files> ROOMS <rooms> LINKS <libraries> [RUN_BY <command>] [COST <seconds>] [MOC]
#           [ALONE <files>] [SPLIT <part>=<tests>...])
#
# One test program, one ctest entry, one process. ROOMS and those they rest on are compiled in directly, so that a room's
# inner classes can be tested although the library hides them; tests of the control link the library. RUN_BY
# is put before the program, to start what it needs. COST: of a test of more than ten seconds; ctest starts the longest
# first, so that none runs alone at the end. MOC: some of the sources have Q_OBJECT; for all others, scanning
# them and compiling the empty outcome would cost more than a test. ALONE: sources with names that others define too.
# SPLIT: a long program has an entry <name>_<part> for each part, with the tests that this pattern of GoogleTest names, so
# that the parts run side by side; the entry <name> runs all other tests.
function(kova_test name)
  cmake_parse_arguments(TEST "MOC" "TIMEOUT;COST" "SOURCES;ROOMS;LINKS;LABELS;RUN_BY;ALONE;SPLIT" ${ARGN})
  kova_program(${name} SOURCES ${TEST_SOURCES} ROOMS ${TEST_ROOMS} LINKS ${TEST_LINKS} kova_test_main)
  set_target_properties(${name} PROPERTIES AUTOMOC ${TEST_MOC})
  kova_precompile(${name} tests)
  kova_quick_compile(${name} ${TEST_ALONE})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src)
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 300)
  endif()
  if(KOVA_SANITIZE)
    math(EXPR TEST_TIMEOUT "4 * ${TEST_TIMEOUT}") # which makes everything slower
  endif()
  set(entries ${name})
  set(others "")
  foreach(part IN LISTS TEST_SPLIT)
    string(REGEX MATCH "^([a-z_]+)=(.+)$" matches ${part})
    set(entry ${name}_${CMAKE_MATCH_1})
    add_test(NAME ${entry} COMMAND ${TEST_RUN_BY} $<TARGET_FILE:${name}> --gtest_filter=${CMAKE_MATCH_2})
    list(APPEND entries ${entry})
    list(APPEND others ${CMAKE_MATCH_2})
  endforeach()
  if(others)
    list(JOIN others ":" others)
    set(others --gtest_filter=-${others})
  endif()
  add_test(NAME ${name} COMMAND ${TEST_RUN_BY} $<TARGET_FILE:${name}> ${others})
  set_tests_properties(${entries} PROPERTIES TIMEOUT ${TEST_TIMEOUT} LABELS "${TEST_LABELS}"
    ENVIRONMENT "LC_ALL=C.UTF-8"
    SKIP_REGULAR_EXPRESSION "ALL TESTS SKIPPED")
  if(TEST_COST)
    set_tests_properties(${entries} PROPERTIES COST ${TEST_COST})
  endif()
endfunction()

# kova_test_of_foreign_program(<test>): of a program that loads what this project builds. Where that is instrumented for
# addresses, the run-time library has to come first all the same, and with it what throws exceptions. What such a program
# leaves behind when it ends is not looked at.
function(kova_test_of_foreign_program test)
  if(NOT KOVA_SANITIZE MATCHES address OR NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    return()
  endif()
  foreach(library IN ITEMS libasan.so libstdc++.so.6)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND first ${path})
  endforeach()
  list(JOIN first ":" first)
  set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT "LD_PRELOAD=${first}" "ASAN_OPTIONS=detect_leaks=0")
endfunction()

# kova_test_part(<name> SOURCES <files> LINKS <libraries>): what several test programs have, compiled once for all of
# them. They link it, and what it links: an object library brings in its own objects only.
function(kova_test_part name)
  cmake_parse_arguments(PART "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} OBJECT ${PART_SOURCES})
  kova_compile_settings(${name})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  kova_precompile(${name} tests)
  kova_quick_compile(${name})
  target_include_directories(${name} PRIVATE
    ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/include)
  target_link_libraries(${name} PRIVATE kova_test_main ${PART_LINKS})
endfunction()

# kova_toolbar_icons(<variable>): the source file that carries the drawings of src/control/parts/icons as resources.
# The folder is the list.
function(kova_toolbar_icons variable)
  cmake_path(SET folder NORMALIZE ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../src/control/parts/icons)
  file(GLOB icons CONFIGURE_DEPENDS ${folder}/*.svg)
  set(files "")
  foreach(icon IN LISTS icons)
    cmake_path(GET icon FILENAME name)
    string(APPEND files "    <file alias=\"icons/${name}\">${icon}</file>\n")
  endforeach()
  set(list ${CMAKE_CURRENT_BINARY_DIR}/ToolbarIcons.qrc)
  file(CONFIGURE OUTPUT ${list} CONTENT
    "<RCC>\n  <qresource prefix=\"/KOVAVSFDataGridLib\">\n${files}  </qresource>\n</RCC>\n" @ONLY)
  qt_add_resources(source ${list})
  set(${variable} ${source} PARENT_SCOPE)
endfunction()

# kova_translation(<variable> <file>.ts): the source file that carries this translation as a resource.
function(kova_translation variable translation)
  find_program(LRELEASE NAMES lrelease HINTS /usr/lib/qt6/bin REQUIRED) # of the building machine
  cmake_path(GET translation STEM name)
  set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
  add_custom_command(OUTPUT ${compiled}
    COMMAND ${LRELEASE} -silent ${translation} -qm ${compiled}
    DEPENDS ${translation} VERBATIM)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  file(CONFIGURE OUTPUT ${list} CONTENT
    "<RCC>\n  <qresource prefix=\"/KOVAVSFDataGridLib/translations\">\n    <file alias=\"${name}.qm\">${compiled}</file>\n  </qresource>\n</RCC>\n" @ONLY)
  set_source_files_properties(${compiled} PROPERTIES GENERATED ON)
  qt_add_resources(source ${list})
  set_property(SOURCE ${source} APPEND PROPERTY OBJECT_DEPENDS ${compiled})
  set(${variable} ${source} PARENT_SCOPE)
endfunction()

# kova_file_version(<target> <description> <file name>): what Windows shows of a file, and finds out whether it is newer
# than another. Does nothing elsewhere.
function(kova_file_version target description file)
  if(NOT WIN32)
    return()
  endif()
  string(REPLACE "." "," numbers ${PROJECT_VERSION})
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
endfunction()
