# cmake -DROOT=tree -P CheckFloors.cmake
# Fails if a floor includes something that it must not know. Includes within the tree are written from its root, so the
# first folder of the name is the floor.
cmake_minimum_required(VERSION 3.25)
get_filename_component(ROOT ${ROOT} ABSOLUTE)

set(floors core table platform chart reports screens shell)

set(core_knows core)
set(table_knows table core)
set(platform_knows platform)
set(chart_knows chart core platform)
set(reports_knows reports core platform)
set(screens_knows screens chart reports core platform)
set(shell_knows shell screens chart reports core platform)

# The core and the tables may include only the standard library. For the other floors, the linker checks the libraries.
set(standard_library
    algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
    condition_variable coroutine deque exception execution filesystem format forward_list fstream functional
    future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
    string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map
    unordered_set utility valarray variant vector version
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype)

# includes_of(FILE VAR): what FILE includes, as <name>, "name", or otherwise the rest of the line. Brackets and
# semicolons would break a CMake list, and no include needs them.
function(includes_of file result)
  file(READ ${file} text)
  string(REGEX REPLACE "[][;\\]" "?" text "\n${text}")
  string(REGEX MATCHALL "\n[ \t]*#[ \t]*include[^\n]*" lines "${text}")
  set(includes "")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "\n[ \t]*#[ \t]*include[ \t]*" "" rest "${line}")
    if(rest MATCHES "^(<[^>]*>|\"[^\"]*\")")
      list(APPEND includes "${CMAKE_MATCH_1}")
    else()
      list(APPEND includes "${rest}")
    endif()
  endforeach()
  set(${result} "${includes}" PARENT_SCOPE)
endfunction()

# fault_of(FLOOR INCLUDE VAR): the violation, or an empty text.
function(fault_of floor include result)
  set(fault "")
  if(include MATCHES "^[<\"]([a-z]+)/" AND CMAKE_MATCH_1 IN_LIST floors)
    if(NOT CMAKE_MATCH_1 IN_LIST ${floor}_knows)
      set(fault "${floor} must not know ${CMAKE_MATCH_1}")
    endif()
  elseif(include MATCHES "^<(.*)>$")
    if((floor STREQUAL "core" OR floor STREQUAL "table") AND NOT CMAKE_MATCH_1 IN_LIST standard_library)
      set(fault "${floor} knows the C++ standard library alone")
    endif()
  else()
    set(fault "not named from the root of the tree")
  endif()
  set(${result} "${fault}" PARENT_SCOPE)
endfunction()

set(faults "")
foreach(floor IN LISTS floors)
  file(GLOB_RECURSE files RELATIVE ${ROOT} ${ROOT}/${floor}/*.h ${ROOT}/${floor}/*.cpp)
  if(NOT files)
    message(FATAL_ERROR "No source files in ${ROOT}/${floor}")
  endif()
  foreach(file IN LISTS files)
    includes_of(${ROOT}/${file} includes)
    foreach(include IN LISTS includes)
      fault_of(${floor} "${include}" fault)
      if(fault)
        string(APPEND faults "${file}: ${include}: ${fault}\n")
      endif()
    endforeach()
  endforeach()
endforeach()

if(faults)
  message("${faults}")
  message(FATAL_ERROR "Includes that point where they must not.")
endif()
