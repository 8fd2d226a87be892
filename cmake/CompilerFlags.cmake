# Warnings and the arithmetic rules that every target of this project is built with.
add_library(dunmoor_flags INTERFACE)
target_compile_options(dunmoor_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

# Results are fixed to the last bit: no fused multiply-add, no re-ordering, no extra precision.
target_compile_options(dunmoor_flags INTERFACE -ffp-contract=off -fno-fast-math)

if(DUNMOOR_SANITIZE)
  target_compile_options(dunmoor_flags INTERFACE -fsanitize=${DUNMOOR_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
  target_link_options(dunmoor_flags INTERFACE -fsanitize=${DUNMOOR_SANITIZE})
endif()
if(DUNMOOR_COVERAGE)
  target_compile_options(dunmoor_flags INTERFACE --coverage)
  target_link_options(dunmoor_flags INTERFACE --coverage)
endif()
