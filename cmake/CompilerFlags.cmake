# Warnings and floating-point rules for every target of this project. Warnings are errors if
# CMAKE_COMPILE_WARNING_AS_ERROR is set: in the development presets, but not for users who only build the program.
add_library(dunmoor_flags INTERFACE)
target_compile_options(dunmoor_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

# Results are exact to the last bit: no fused multiply-add, no reordering, no extra precision. Linking with fast math
# makes a program flush subnormals to zero, so the linker gets these options too. Only another optimization level
# cancels -Ofast.
set(plain_arithmetic -ffp-contract=off -fno-fast-math -fno-unsafe-math-optimizations)
target_compile_options(dunmoor_flags INTERFACE ${plain_arithmetic})
target_link_options(dunmoor_flags INTERFACE ${plain_arithmetic})
foreach(flags CMAKE_CXX_FLAGS CMAKE_EXE_LINKER_FLAGS)
  string(REPLACE -Ofast -O3 ${flags} "${${flags}}")
endforeach()

if(DUNMOOR_SANITIZE)
  target_compile_options(dunmoor_flags INTERFACE -fsanitize=${DUNMOOR_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
  target_link_options(dunmoor_flags INTERFACE -fsanitize=${DUNMOOR_SANITIZE})
endif()
if(DUNMOOR_COVERAGE)
  target_compile_options(dunmoor_flags INTERFACE --coverage)
  target_link_options(dunmoor_flags INTERFACE --coverage)
endif()
