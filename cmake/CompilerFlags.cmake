# Warnings and the arithmetic rules that every target of this project is built with. Warnings are errors where
# CMAKE_COMPILE_WARNING_AS_ERROR says so: in the presets for development, and never for who only wants the program.
add_library(dunmoor_flags INTERFACE)
target_compile_options(dunmoor_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

# Results are fixed to the last bit: no fused multiply-add, no re-ordering, no extra precision. Linked with fast math, a
# program flushes tiny numbers to zero, so the linker is told too; of -Ofast nothing but another level takes that back.
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
