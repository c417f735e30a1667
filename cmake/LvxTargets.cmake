# What every target of this project is built with.

# LVX_SANITIZE as compiler and linker options.
function(lvx_sanitizer_options result)
  if(NOT LVX_SANITIZE)
    set(options "")
  elseif(LVX_SANITIZE STREQUAL "address")
    set(options -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  elseif(LVX_SANITIZE STREQUAL "thread")
    set(options -fsanitize=thread -fno-omit-frame-pointer)
  else()
    message(FATAL_ERROR "LVX_SANITIZE is '${LVX_SANITIZE}', but can be address, thread or empty only")
  endif()
  set(${result} ${options} PARENT_SCOPE)
endfunction()

# Warnings, visibility, sanitizers and coverage for one of our own targets.
function(lvx_configure_target target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  lvx_sanitizer_options(options)
  if(LVX_COVERAGE)
    list(APPEND options -fprofile-instr-generate -fcoverage-mapping)
    # The counters can live in a file: processes that end on the spot have counted too. Warnings are left to the
    # compiler that the tests otherwise have.
    target_compile_options(${target} PRIVATE "SHELL:-mllvm -runtime-counter-relocation" -w)
  endif()
  target_compile_options(${target} PRIVATE ${options})
  target_link_options(${target} PRIVATE ${options})
endfunction()

# Names a shared library as its system does, owl.dll or libowl.so.0; installed beside each other, ours find each other.
function(lvx_name_shared_library target)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 0 PREFIX "" IMPORT_PREFIX "lib")
  if(NOT WIN32)
    set_target_properties(${target} PROPERTIES PREFIX "lib" INSTALL_RPATH "$ORIGIN")
  endif()
endfunction()

# Puts the compiler's runtime modules beside the programs: every module of a process shares one runtime.
function(lvx_copy_runtime_modules)
  if(NOT WIN32)
    return()
  endif()
  foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(EXISTS "${path}")
      file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    endif()
  endforeach()
endfunction()

# lvx_add_tests(NAME [THREADS] SOURCES...): one test program from the *_test.cpp files of a folder. With the thread
# sanitizer only those with THREADS are built and run: the others have one thread.
function(lvx_add_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 tests "THREADS" "" "")
  add_executable(${name} ${tests_UNPARSED_ARGUMENTS})
  lvx_configure_target(${name})
  # Tests are compiled far more often than they run: half the time that the library's own options take.
  target_compile_options(${name} PRIVATE -O1 -g1)
  target_link_libraries(${name} PRIVATE lvx::lvx lvx_test_support GTest::gmock_main)
  if(LVX_SANITIZE STREQUAL "thread" AND NOT tests_THREADS)
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    return()
  endif()
  add_test(NAME ${name}
    COMMAND ${name} --gtest_brief=1 --gtest_output=xml:results/${name}.xml
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()
