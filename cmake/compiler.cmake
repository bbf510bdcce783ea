# What every target of the project is compiled with.
if(MSVC)
  add_compile_options(/W4 /WX /utf-8 /fp:precise)
else()
  # The third level takes longer to compile, and no benchmark is faster for it.
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
  # A fused multiply-add rounds once where the flight rounds twice: with it a shell would land elsewhere on some machines.
  add_compile_options(-ffp-contract=off)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # Where this compiler works on two doubles at once, it takes one stored as a single and read back for the double
    # itself: a flight then goes on unrounded.
    add_compile_options(-fno-tree-slp-vectorize)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # This compiler takes every "text" + std::string for an overlapping copy.
    add_compile_options(-Wno-restrict)
  endif()
endif()

if(QUINTARA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # The sanitizers' own code hides from this compiler what is initialised; it doubts the standard library's <regex>.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

if(QUINTARA_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    message(FATAL_ERROR "QUINTARA_FUZZ needs clang, whose libFuzzer feeds the targets, and this is "
      "${CMAKE_CXX_COMPILER_ID}. Configure a fresh folder with -DCMAKE_CXX_COMPILER=clang++, or call fuzz/run.")
  endif()
  # All code tells the fuzzer where it has been, and the sanitizers when it goes astray.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    -g1)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()

# Each folder is compiled at once: file by file most of a build's time would go into reading the same headers again.
set(CMAKE_UNITY_BUILD ON CACHE BOOL "Compile the files of a target at once instead of one by one")
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)

# quintara_library(NAME LIBRARY...): the library of one folder, which stands on those named; its headers are included as
# "FOLDER/header.h". A file main.cpp in the folder is a program's and no part of it. A folder that has only headers
# makes a library without code.
function(quintara_library name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(sources)
    add_library(${name} STATIC ${sources})
    set(scope PUBLIC)
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${name} ${scope} ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} ${scope} ${ARGN})
endfunction()

# quintara_test_program(NAME LIBRARY [SOURCE...]): a GoogleTest program whose cases ctest runs one by one, made of the
# sources named or else of all those of its folder. What it tests is optimised; to optimise the test as well would take
# longer than all its runs.
function(quintara_test_program name library)
  set(sources ${ARGN})
  if(NOT sources)
    file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${library} GTest::gtest)
  if(NOT MSVC)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST)
endfunction()

# quintara_test(NAME LIBRARY [SOURCE...]): one that needs no main function of its own.
function(quintara_test name library)
  quintara_test_program(${name} ${library} ${ARGN})
  target_link_libraries(${name} PRIVATE GTest::gtest_main)
endfunction()
