# Pixels, files and pictures once more as the address and undefined-behaviour sanitizers watch them. The program's sources
# are compiled for that; the tests are the same objects, whose own memory is not watched, but what the program does is.
# Nothing of it is built unless it is asked for, as ./test does.
set(SANITIZERS -fsanitize=address,undefined,float-cast-overflow)
add_library(sanitizers INTERFACE)
# Their checks make the compiler warn of what is not there.
target_compile_options(sanitizers INTERFACE -Og -g1 -UNDEBUG ${SANITIZERS} -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer -Wno-error)
target_link_options(sanitizers INTERFACE ${SANITIZERS})

foreach(floor pixano_pixels pixano_files pixano_pictures)
  get_target_property(sources ${floor} SOURCES)
  list(APPEND SANITIZED_SOURCES ${sources})
endforeach()
add_library(sanitized_floors OBJECT EXCLUDE_FROM_ALL ${SANITIZED_SOURCES})
pixano_compile_by_folder(sanitized_floors)
target_link_libraries(sanitized_floors PUBLIC pixano_options sanitizers JPEG::JPEG PNG::PNG)

# A program with these sources and objects. The floors come first: what others share with them, such as a function in a
# header, is taken from there.
function(pixano_sanitized name)
  add_executable(${name} EXCLUDE_FROM_ALL $<TARGET_OBJECTS:sanitized_floors> ${ARGN})
  pixano_compile_by_folder(${name})
  target_link_libraries(${name} PRIVATE pixano_options sanitizers JPEG::JPEG PNG::PNG GIF::GIF Threads::Threads)
endfunction()

# Builds it in the time that other tests leave, and runs it in two parts, without the tests EXCEPT.
function(pixano_sanitized_tests name except labels)
  target_link_libraries(${name} PRIVATE plain_main)
  add_test(NAME ${name}_build COMMAND nice -n 19 ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target ${name})
  set_tests_properties(${name}_build PROPERTIES LABELS "${labels}" TIMEOUT 1800 COST 900 RESOURCE_LOCK build
                                                FIXTURES_SETUP ${name})
  foreach(part RANGE 1)
    add_test(NAME ${name}_${part} COMMAND nice -n 19 $<TARGET_FILE:${name}>)
    set_tests_properties(${name}_${part} PROPERTIES LABELS "${labels}" TIMEOUT 900 COST 100 FIXTURES_REQUIRED ${name}
      ENVIRONMENT "GTEST_BRIEF=1;GTEST_TOTAL_SHARDS=2;GTEST_SHARD_INDEX=${part};GTEST_FILTER=-${except}")
  endforeach()
endfunction()

# In a short run what reads pictures from outside. A thousand million bytes or pixels take minutes here, and say nothing
# more.
pixano_sanitized(sanitized_hostile_test $<TARGET_OBJECTS:hostile_test> reliability/fuzz_memory.cpp)
pixano_sanitized_tests(sanitized_hostile_test "LargeStream.*:SlowJpeg.*" sanitized)
pixano_sanitized(sanitized_pictures_test $<TARGET_OBJECTS:pictures_test>)
pixano_sanitized_tests(sanitized_pictures_test "" sanitized)
# What is given back is kept here.
pixano_sanitized(sanitized_pixels_test $<TARGET_OBJECTS:pixels_test>)
pixano_sanitized_tests(sanitized_pixels_test "LargePages.*" "sanitized;long")
# The batch tool is a program too, with its strengths beside it. The books that are kept of its memory take more address
# space than the tests of too little memory leave, and here too what is given back is kept.
get_target_property(BATCH_SOURCES pixano_batch_tool SOURCES)
pixano_sanitized(sanitized_tool ${BATCH_SOURCES} ${CMAKE_SOURCE_DIR}/src/batch/main.cpp)
set_target_properties(sanitized_tool PROPERTIES OUTPUT_NAME pixano-batch
                                                RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin/sanitized)
configure_file(${CMAKE_SOURCE_DIR}/resources/valori.tip ${CMAKE_BINARY_DIR}/bin/sanitized/valori.tip COPYONLY)
pixano_sanitized(sanitized_batch_test ${BATCH_SOURCES} ${BATCH_TESTS})
target_compile_definitions(sanitized_batch_test PRIVATE PIXANO_BATCH="$<TARGET_FILE:sanitized_tool>")
add_dependencies(sanitized_batch_test sanitized_tool)
pixano_sanitized_tests(sanitized_batch_test "TooLittleMemory.*:Tool.UsesThePages*" "sanitized;long")
