# lvx_use_windows_deps(SYSTEM): sets LVX_DEPS, the folder of the libraries that scripts/cross-deps made, unless the
# caller did; ends the configuration when they were not made yet.
function(lvx_use_windows_deps system)
  set(LVX_DEPS "" CACHE PATH "The libraries made by scripts/cross-deps")
  if(NOT LVX_DEPS)
    execute_process(COMMAND ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../../scripts/cross-deps ${system} --print
      OUTPUT_VARIABLE prefix OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(LVX_DEPS "${prefix}" CACHE PATH "The libraries made by scripts/cross-deps" FORCE)
  endif()
  if(NOT IS_DIRECTORY "${LVX_DEPS}")
    message(FATAL_ERROR "The libraries for ${system} are missing: run scripts/cross-deps ${system}")
  endif()
endfunction()

# The compiler's own checks are configured apart and need the same folder.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LVX_DEPS)
