# Runs the check on a tree with every kind of wrong include among correct ones. It must fail and name exactly the wrong
# ones.
cmake_minimum_required(VERSION 3.25)
set(here ${CMAKE_CURRENT_LIST_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${here}/upward -P ${here}/CheckFloors.cmake
                RESULT_VARIABLE status ERROR_VARIABLE said)
if(status EQUAL 0)
  message(FATAL_ERROR "The check passes a tree with wrong includes")
endif()

file(READ ${here}/upward/faults.txt expected)
string(FIND "${said}" "${expected}" place)
if(NOT place EQUAL 0)
  message(FATAL_ERROR "Expected to read\n${expected}\nbut read\n${said}")
endif()
