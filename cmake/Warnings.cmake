# ximo_target_warnings(<target>): the project's warning set; errors in developer builds.
function(ximo_target_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor)
  if(XIMO_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

# ximo_add_library(<name> <alias> <folder>): a library whose sources are every .cpp below <folder>,
# with headers beside them and includes rooted at src/.
# Shared, so that element plug-ins loaded at run time link the same host, framework and module
# as the program that loads them: one copy of each singleton (the scheme manager, the working
# database, the catalogs) per process.
function(ximo_add_library name alias folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp")
  add_library(${name} SHARED ${sources})
  add_library(${alias} ALIAS ${name})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  ximo_target_warnings(${name})
endfunction()
