# The windowed program when things go wrong: killed, tampered with, clicked at random. The full forms
# are labelled "long".
set(RELIABILITY ${CMAKE_CURRENT_LIST_DIR})

function(pixano_reliability_tests name)
  list(TRANSFORM ARGN PREPEND ${RELIABILITY}/)
  pixano_tests(${name} SOURCES ${ARGN} windows_main.cpp LIBRARIES pixano_windows Qt6::Test
               PROPERTIES LABELS reliability ENVIRONMENT PIXANO_LONG=0)
  # GCC 12 takes an optional text that is moved from for one that was never filled.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endfunction()

function(pixano_long_form name filter)
  add_test(NAME ${name}_long COMMAND ${name} --gtest_filter=${filter})
  set_tests_properties(${name}_long PROPERTIES LABELS "reliability;long" TIMEOUT 3600
                                               ENVIRONMENT PIXANO_LONG=1)
endfunction()

pixano_reliability_tests(sequences_test sequences_test.cpp player.cpp model.cpp)
pixano_long_form(sequences_test *)
