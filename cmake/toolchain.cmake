# How everything is compiled: standard, warnings, sanitizers, compiler cache and linker.
# Every target of the studio links `studio_flags`.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Programs are compiled like libraries, so that both can share one precompiled header.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})
# One target `autogen` runs every moc of the rooms without building the libraries first; ./lint needs just that and
# `test_mocs`.
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

add_library(studio_flags INTERFACE)
target_include_directories(studio_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(studio_flags INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(studio_flags INTERFACE QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)
if(STUDIO_WERROR)
  target_compile_options(studio_flags INTERFACE -Werror)
endif()

if(STUDIO_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_compile_options(studio_flags INTERFACE ${sanitizers} -fno-omit-frame-pointer)
  target_link_options(studio_flags INTERFACE ${sanitizers})
  target_compile_definitions(studio_flags INTERFACE _GLIBCXX_ASSERTIONS)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The sanitizers' own code makes gcc see uninitialised values that are none.
    target_compile_options(studio_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(STUDIO_FUZZ)
  target_compile_options(studio_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(STUDIO_CCACHE ccache)
if(STUDIO_CCACHE)
  # Without this sloppiness ccache refuses to work with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${STUDIO_CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(studio_flags INTERFACE -fpch-preprocess)
  else()
    target_compile_options(studio_flags INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

foreach(linker mold lld gold)
  find_program(STUDIO_LINKER_${linker} ld.${linker})
  if(STUDIO_LINKER_${linker})
    target_link_options(studio_flags INTERFACE -fuse-ld=${linker})
    break()
  endif()
endforeach()
