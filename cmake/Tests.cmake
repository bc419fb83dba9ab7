find_package(GTest REQUIRED)
include(GoogleTest)

# mirune_tests(NAME SOURCES file... LINK target...)
#
# One executable of GoogleTest cases. Recorded cases are found below MIRUNE_TEST_DATA; "support/…" are the tests' own
# helpers; what a test makes goes below MIRUNE_TEST_BUILD, the folder of its executable's build.
function(mirune_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_compile_definitions(${name} PRIVATE MIRUNE_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                             MIRUNE_TEST_BUILD="${CMAKE_CURRENT_BINARY_DIR}")
  target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest_main)
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
endfunction()
