# dunmoor_floor(NAME [BELOW targets...]) builds the static library of one floor from the sources in its folder. Include
# headers as "floor/Header.h".
function(dunmoor_floor name)
  cmake_parse_arguments(floor "" "" "BELOW" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER sources EXCLUDE REGEX "/Main\\.cpp$") # an executable's own file
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME dunmoor_${name})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${floor_BELOW} PRIVATE dunmoor_flags)
endfunction()
