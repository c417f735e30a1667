# What every target of this project is built with.

# Warnings, visibility and sanitizers for one of our own targets.
function(lvx_configure_target target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(LVX_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all
      -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
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

# lvx_add_tests(NAME SOURCES...): one test program from the *_test.cpp files of a folder.
function(lvx_add_tests name)
  add_executable(${name} ${ARGN})
  lvx_configure_target(${name})
  # Tests are compiled far more often than they run: half the time that the library's own options take.
  target_compile_options(${name} PRIVATE -O1 -g1)
  target_link_libraries(${name} PRIVATE lvx::lvx lvx_test_support GTest::gmock_main)
  add_test(NAME ${name}
    COMMAND ${name} --gtest_brief=1 --gtest_output=xml:results/${name}.xml
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()
