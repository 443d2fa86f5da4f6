cmake_minimum_required(VERSION 3.25)

# cmake -DSOURCE_DIR=<project> -P PortableIncludes.cmake
#
# Fails when what hosts use includes a header that only one operating system has. A folder `platform` of a room is the place
# for those; src/activex is built for Windows alone.
set(one_system_only
  "arpa/|dirent\\.h|dlfcn\\.h|fcntl\\.h|glob\\.h|grp\\.h|langinfo\\.h|libgen\\.h|link\\.h|mach|malloc\\.h|net/|netdb\\.h|netinet/|"
  "poll\\.h|pthread\\.h|pwd\\.h|sched\\.h|semaphore\\.h|spawn\\.h|strings\\.h|sys/|syslog\\.h|termios\\.h|"
  "unistd\\.h|utime\\.h|windows\\.h|winsock|xcb/|direct\\.h|io\\.h|process\\.h")
list(JOIN one_system_only "" one_system_only)

set(faults "")
foreach(folder IN ITEMS include src apps designer examples)
  file(GLOB_RECURSE files ${SOURCE_DIR}/${folder}/*.h ${SOURCE_DIR}/${folder}/*.cpp)
  list(FILTER files EXCLUDE REGEX "/(src/ado/rows/platform|src/control/settings/platform|src/control/parts/lines/platform|src/export/platform|src/activex|apps/kovagrid/start/platform)/")
  foreach(file IN LISTS files)
    file(STRINGS ${file} lines REGEX "^ *# *include *<(${one_system_only})")
    foreach(line IN LISTS lines)
      list(APPEND faults "${file}: belongs in a folder platform: ${line}")
    endforeach()
  endforeach()
endforeach()

if(faults)
  list(JOIN faults "\n" text)
  message(FATAL_ERROR "${text}")
endif()
