# Options that every target of the project shares, and the three shapes a folder can take:
# a library, a program, and a program of tests.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(telvix_options INTERFACE)
target_compile_definitions(telvix_options INTERFACE
  UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
target_include_directories(telvix_options INTERFACE
  ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)
if(MSVC)
  target_compile_options(telvix_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(telvix_options INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Werror>)
  # Without time stamps and paths of the checkout, two builds of a commit are identical.
  target_link_options(telvix_options INTERFACE -static -Wl,--no-insert-timestamp)
  if(TELVIX_CHECKED)
    target_compile_definitions(telvix_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_compile_options(telvix_options INTERFACE
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined -fsanitize-undefined-trap-on-error -fstack-protector-strong
        -O$<IF:$<BOOL:$<TARGET_PROPERTY:TELVIX_IS_TEST>>,0,1>>
      # GCC 12 sees out-of-bounds copies in texts made from short literals at -O1; other builds keep the warning.
      $<$<COMPILE_LANGUAGE:CXX>:-Wno-array-bounds -Wno-stringop-overread>)
    target_link_options(telvix_options INTERFACE -fstack-protector-strong) # which brings its library
  else()
    target_compile_options(telvix_options INTERFACE
      $<$<COMPILE_LANGUAGE:CXX>:-Os -ffunction-sections -fdata-sections -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
    target_link_options(telvix_options INTERFACE -Wl,--gc-sections -s)
  endif()
endif()
target_link_libraries(telvix_options INTERFACE
  ole32 oleaut32 uuid comctl32 comdlg32 gdi32 user32 uxtheme advapi32)

# Test programs are linked by LLVM's linker, for its speed. The component and the fakes keep GNU's, with which they are
# shipped, and so do 32-bit programs, whose exceptions it does not serve.
find_program(TELVIX_LLD ld.lld)
set(telvix_test_linker)
if(TELVIX_LLD AND NOT MSVC AND CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(telvix_test_linker -wrapper ${CMAKE_SOURCE_DIR}/scripts/link_with_lld)
endif()

# telvix_test_options(NAME): the options of a test's own sources. The code under test keeps its optimisation;
# assertions compile in half the time without. A fixture in an unnamed namespace has one linkage, also where
# several sources are compiled as one.
function(telvix_test_options name)
  set_target_properties(${name} PROPERTIES TELVIX_IS_TEST ON)
  target_link_options(${name} PRIVATE ${telvix_test_linker})
  if(TELVIX_UNITY AND NOT MSVC)
    target_compile_options(${name} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-Wno-subobject-linkage>)
  endif()
endfunction()

# The headers that most sources include, compiled once for all targets with the same options.
add_library(telvix_precompiled OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled/Precompiled.cpp)
target_link_libraries(telvix_precompiled PRIVATE telvix_options)
target_precompile_headers(telvix_precompiled PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled/Windows.h)

# telvix_build_fast(NAME PRECOMPILED SOURCES): reuses the precompiled headers, and compiles that many of the
# folder's sources as one: most of a small source's time goes to the headers it includes.
function(telvix_build_fast name precompiled sources)
  set_target_properties(${name} PROPERTIES UNITY_BUILD ${TELVIX_UNITY} UNITY_BUILD_BATCH_SIZE ${sources})
  if(TELVIX_UNITY)
    target_precompile_headers(${name} REUSE_FROM ${precompiled})
  endif()
endfunction()

# telvix_component_headers(NAME SCOPE FOLDER): shows the headers of a folder of src/ to the targets that link the
# library, and to no others: an include that no dependency allows does not compile.
function(telvix_component_headers name scope folder)
  set(view ${CMAKE_BINARY_DIR}/views/${folder})
  if(NOT EXISTS ${view}/${folder})
    cmake_path(GET folder PARENT_PATH parent)
    file(MAKE_DIRECTORY ${view}/${parent})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${view}/${folder} SYMBOLIC COPY_ON_ERROR)
  endif()
  target_include_directories(${name} ${scope} ${view})
endfunction()

# telvix_library(NAME lib... [FOLDERS folder...]): a static library of the folder's sources, and of the subfolders
# named; the libraries it builds on follow.
function(telvix_library name)
  cmake_parse_arguments(arg "" "" "FOLDERS" ${ARGN})
  list(TRANSFORM arg_FOLDERS REPLACE "(.+)" "${CMAKE_CURRENT_SOURCE_DIR}/\\1/*.cpp")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${arg_FOLDERS})
  set(scope PUBLIC)
  if(sources)
    add_library(${name} STATIC ${sources})
    telvix_build_fast(${name} telvix_precompiled 12)
  else()
    set(scope INTERFACE)
    add_library(${name} INTERFACE)
  endif()
  target_link_libraries(${name} ${scope} ${arg_UNPARSED_ARGUMENTS} telvix_options)
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/src OUTPUT_VARIABLE folder)
  if(NOT folder MATCHES "^[.][.]")
    telvix_component_headers(${name} ${scope} ${folder})
  endif()
endfunction()

# telvix_program(NAME lib...): a program of the folder's sources (those named *.cpp and *.rc).
function(telvix_program name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.rc)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARGN} telvix_options)
  telvix_build_fast(${name} telvix_precompiled 12)
endfunction()

# The test programs that run longest, the longest first: they start first, so that no lane waits for them at the end.
set(telvix_longest_tests boundary_tests endurance_tests faults_tests hostile_tests end_to_end_tests
  end_to_end_tests_zh ui_config_tests ui_tests)

# telvix_add_test(NAME [COMMAND arg...] [LOCALE name] [TIMEOUT seconds] [FILES file...] [USES target...]
# [TESTS filter] [BRIEF filter]): a test that ctest runs, in a lane of its own. Without COMMAND it runs the program of
# that name. TESTS is the part of a GoogleTest program that runs, as a filter; all of it by default. ./test --changed
# runs a test when one of its files, or a file of the targets that it loads at run time, is newer than its last
# success, and of it only the part that BRIEF names.
function(telvix_add_test name)
  cmake_parse_arguments(arg "" "LOCALE;TIMEOUT;TESTS;BRIEF" "COMMAND;FILES;USES" ${ARGN})
  if(NOT arg_COMMAND)
    set(arg_COMMAND $<TARGET_FILE:${name}>)
    list(APPEND arg_USES ${name})
  endif()
  list(GET arg_COMMAND 0 program)
  if(NOT program MATCHES "[.]sh$")
    list(PREPEND arg_COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR})
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/scripts/in_lane ${arg_COMMAND})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
  set(environment)
  foreach(pair "LOCALE=LC_ALL" "TESTS=GTEST_FILTER" "BRIEF=TELVIX_BRIEF_TESTS")
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 argument)
    list(GET pair 1 variable)
    if(arg_${argument})
      list(APPEND environment "${variable}=${arg_${argument}}")
    endif()
  endforeach()
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}")
  list(FIND telvix_longest_tests ${name} place)
  if(place GREATER_EQUAL 0)
    math(EXPR cost "100 - ${place}")
    set_tests_properties(${name} PROPERTIES COST ${cost})
  endif()
  foreach(target IN LISTS arg_USES)
    list(APPEND arg_FILES $<TARGET_FILE:${target}>)
  endforeach()
  list(JOIN arg_FILES " " files)
  set_property(GLOBAL APPEND_STRING PROPERTY telvix_test_files "${name}|${files}\n")
endfunction()

# telvix_write_test_files(): writes build/.../test_files, a line for each test: its name and its files.
function(telvix_write_test_files)
  get_property(lines GLOBAL PROPERTY telvix_test_files)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/test_files CONTENT "${lines}")
endfunction()

# telvix_test_program(NAME lib...): a program of tests over GoogleTest.
function(telvix_test_program name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARGN} test_support telvix_options)
  telvix_test_options(${name})
  telvix_build_fast(${name} telvix_tests_precompiled 12)
endfunction()

# telvix_tests(NAME lib...): a program of tests that runs as it is.
function(telvix_tests name)
  telvix_test_program(${name} ${ARGN})
  telvix_add_test(${name})
endfunction()

# telvix_check_headers(NAME folder...): a target, built on demand, that compiles each header of the folders alone,
# without precompiled headers, so that a header includes everything it uses.
function(telvix_check_headers name)
  list(TRANSFORM ARGN REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/\\1/*.h" OUTPUT_VARIABLE patterns)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${patterns})
  foreach(header IN LISTS headers)
    set(source ${CMAKE_BINARY_DIR}/headers/${header}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
    list(APPEND sources ${source})
  endforeach()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
  set_target_properties(${name} PROPERTIES TELVIX_IS_TEST ON) # no optimisation
endfunction()
