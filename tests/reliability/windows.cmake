# The windowed program when things go wrong: killed, tampered with, clicked at random. The full forms
# are labelled "long".
set(RELIABILITY ${CMAKE_CURRENT_LIST_DIR})

# Waiting for a disk is not what is tested here.
set(RELIABILITY_SHORT PIXANO_LONG=0)
set(RELIABILITY_LONG PIXANO_LONG=1)
if(IS_DIRECTORY /dev/shm)
  list(APPEND RELIABILITY_SHORT TMPDIR=/dev/shm)
  list(APPEND RELIABILITY_LONG TMPDIR=/dev/shm)
endif()

# A program of the tests that runs the windows.
function(pixano_windowed name)
  list(TRANSFORM ARGN PREPEND ${RELIABILITY}/)
  add_executable(${name} ${ARGN})
  target_precompile_headers(${name} REUSE_FROM windows_main)
  target_link_libraries(${name} PRIVATE pixano_windows Qt6::Test test_options)
endfunction()

function(pixano_reliability_tests name)
  pixano_windowed(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE windows_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS reliability TIMEOUT 240 COST 100
                                          ENVIRONMENT "${RELIABILITY_SHORT}")
endfunction()

function(pixano_long_form name)
  add_test(NAME ${name}_long COMMAND ${name})
  set_tests_properties(${name}_long PROPERTIES LABELS "reliability;long" TIMEOUT 3600
                                               ENVIRONMENT "${RELIABILITY_LONG}")
endfunction()

# A user at random, and what the program should be like after each of his commands.
set(PLAYER player.cpp player_files.cpp model.cpp model_history.cpp difference.cpp)
pixano_reliability_tests(sequences_test sequences_test.cpp ${PLAYER})
pixano_long_form(sequences_test)

# Killed, and started again.
pixano_windowed(pixano-victim victim.cpp ${PLAYER})
pixano_reliability_tests(crash_test crash_test.cpp child.cpp knowledge.cpp)
target_compile_definitions(crash_test PRIVATE PIXANO_VICTIM="$<TARGET_FILE:pixano-victim>"
                                              FAILING_CALLS="$<TARGET_FILE_NAME:failing_calls>"
                                              FAILING_CALLS_FOLDER="$<TARGET_FILE_DIR:failing_calls>")
add_dependencies(crash_test pixano-victim failing_calls)
pixano_long_form(crash_test)
# No one is killed here: every process comes to its end, and tells which lines it ran.
pixano_reliability_tests(recovery_test recovery_test.cpp recovery_tampered_test.cpp child.cpp knowledge.cpp)
target_compile_definitions(recovery_test PRIVATE PIXANO_VICTIM="$<TARGET_FILE:pixano-victim>")
add_dependencies(recovery_test pixano-victim)
set_tests_properties(recovery_test PROPERTIES LABELS "reliability;windows")
# Each call fails while a command is given.
pixano_reliability_tests(every_failure_test every_failure_test.cpp short_memory_test.cpp every_command.cpp scenes.cpp
                         true_state.cpp)
target_link_libraries(every_failure_test PRIVATE failing_calls)
pixano_long_form(every_failure_test)

pixano_reliability_tests(working_files_test working_files_test.cpp disk_trouble_test.cpp working_commands.cpp)

pixano_reliability_tests(meanwhile_test meanwhile_test.cpp)

pixano_windowed(pixano-visitor visitor.cpp)
find_package(Qt6 6.4 REQUIRED COMPONENTS Gui)
add_library(decoy MODULE ${RELIABILITY}/decoy/decoy.cpp)
set_target_properties(decoy PROPERTIES AUTOMOC ON)
target_include_directories(decoy PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(decoy PRIVATE pixano_options Qt6::Gui)
pixano_reliability_tests(foreign_folder_test foreign_folder_test.cpp child.cpp)
target_compile_definitions(foreign_folder_test
                           PRIVATE PIXANO_VISITOR="$<TARGET_FILE:pixano-visitor>"
                                   PIXANO_DECOY_LIBRARY="$<TARGET_FILE:decoy>")
add_dependencies(foreign_folder_test pixano-visitor decoy)

# The display dies under the program; clicks and keys while it works, on a real one.
add_test(NAME display_dies
         COMMAND ${RELIABILITY}/display_dies.sh $<TARGET_FILE:pixano> $<TARGET_FILE:pixano-batch>)
set_tests_properties(display_dies PROPERTIES LABELS "reliability;e2e" TIMEOUT 180 COST 100
                                             ENVIRONMENT "EVIDENCE=${CMAKE_BINARY_DIR}/e2e")
