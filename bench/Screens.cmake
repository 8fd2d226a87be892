# What the running program costs: its start and its memory compared with an empty window, and one calculation.
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

# The programs that are measured. Their names lack bench_, because they are not benchmarks themselves.
add_executable(start_dunmoor ${PROJECT_SOURCE_DIR}/shell/Main.cpp StartProbe.cpp)
target_link_libraries(start_dunmoor PRIVATE shell dunmoor_flags)
add_executable(start_empty StartEmpty.cpp StartProbe.cpp)
add_executable(start_controls StartControls.cpp StartProbe.cpp)
foreach(program start_empty start_controls)
  target_include_directories(${program} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${program} PRIVATE Qt6::Widgets dunmoor_flags)
endforeach()

add_executable(bench_starts Starts.cpp)
target_include_directories(bench_starts PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(bench_starts PRIVATE dunmoor_flags)
add_dependencies(bench_starts start_dunmoor start_empty start_controls)

add_executable(bench_calculate Calculate.cpp)
target_link_libraries(bench_calculate PRIVATE shell Qt6::Test dunmoor_flags)
