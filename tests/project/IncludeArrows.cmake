cmake_minimum_required(VERSION 3.25)

# cmake -DSOURCE_DIR=<project> -P IncludeArrows.cmake
#
# Fails when a source file includes what its room may not use.

# Which rooms each room may include, besides itself.
set(may_sql "")
set(may_query sql)
set(may_ado sql)
set(may_grid ado)
set(may_forms sql query)
set(may_filter sql query ado forms)
set(may_session sql query ado grid)
set(may_pages sql query forms)
set(may_control sql session query ado grid forms filter pages)
# Rooms without a window.
set(windowless query ado)
# The one room that knows SQLite.
set(knows_sqlite ado)

set(faults "")
foreach(room IN ITEMS sql query ado grid forms filter session pages control)
  file(GLOB_RECURSE files ${SOURCE_DIR}/src/${room}/*.h ${SOURCE_DIR}/src/${room}/*.cpp)
  foreach(file IN LISTS files)
    file(STRINGS ${file} lines REGEX "^ *# *include")
    foreach(line IN LISTS lines)
      if(line MATCHES "include *\"([a-z]+)/")
        if(NOT CMAKE_MATCH_1 STREQUAL room AND NOT CMAKE_MATCH_1 IN_LIST may_${room})
          list(APPEND faults "${file}: ${room} may not use ${CMAKE_MATCH_1}: ${line}")
        endif()
      elseif(line MATCHES "include *\"\\.\\./" OR line MATCHES "include *\"[^/\"]+\\.h\"" AND NOT line MATCHES "KovaExport\\.h|moc_")
        list(APPEND faults "${file}: includes are written from src/: ${line}")
      elseif(room IN_LIST windowless AND line MATCHES "<Q(tWidgets|tGui|Widget|Dialog|Application)")
        list(APPEND faults "${file}: ${room} has no window: ${line}")
      elseif(NOT room IN_LIST knows_sqlite AND line MATCHES "sqlite3|<sql")
        list(APPEND faults "${file}: ${room} has no database: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()

if(faults)
  list(JOIN faults "\n" text)
  message(FATAL_ERROR "${text}")
endif()
