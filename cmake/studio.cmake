# One function per kind of unit, so that a new one is one line.
#
#   studio_library(NAME [DEPENDS room...] [LIBS target...] [FOLDERS sub...])   a room: every source of the folder
#   studio_program(NAME [DEPENDS room...])                                     a program: main.cpp of the folder
#   studio_test(PATH [DEPENDS room...] [LIBS target...] [TIMEOUT seconds])     tests/PATH.cpp
#   studio_bench(NAME [DEPENDS room...] [LIBS target...])                      bench/NAME.cpp
#   studio_fuzz(NAME [DEPENDS room...] [LIBS target...])                       fuzz/NAME.cpp, fuzz/corpus/NAME/
#
# DEPENDS names rooms (their CMake targets), LIBS names other libraries.

include_guard()

set(STUDIO_LSAN_SUPPRESSIONS ${CMAKE_SOURCE_DIR}/tools/lsan.supp)

# Adds a room's folder once it has sources; a room arrives with its first file.
function(studio_room folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/${folder}/*.h)
  if(sources AND EXISTS ${CMAKE_SOURCE_DIR}/${folder}/CMakeLists.txt)
    add_subdirectory(${folder})
  endif()
endfunction()

# Two precompiled headers serve everything: one for what links Qt Core only, one for what links Widgets.
function(studio_precompiled_headers)
  foreach(kind core widgets)
    file(WRITE ${CMAKE_BINARY_DIR}/pch/${kind}.cpp.new "// Carries the precompiled header of the ${kind} rooms.\n")
    file(COPY_FILE ${CMAKE_BINARY_DIR}/pch/${kind}.cpp.new ${CMAKE_BINARY_DIR}/pch/${kind}.cpp ONLY_IF_DIFFERENT)
    add_library(pch_${kind} OBJECT ${CMAKE_BINARY_DIR}/pch/${kind}.cpp)
    target_link_libraries(pch_${kind} PRIVATE studio_flags Qt6::Core)
    target_precompile_headers(pch_${kind} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/pch_${kind}.h)
  endforeach()
  target_link_libraries(pch_widgets PRIVATE Qt6::Gui Qt6::Widgets)
endfunction()

# Links what a target needs and gives it the precompiled header of its kind.
function(studio_link target visibility depends libs)
  set(kind core)
  if("Qt6::Widgets" IN_LIST libs)
    set(kind widgets)
  endif()
  foreach(room IN LISTS depends)
    if(NOT TARGET ${room})
      message(FATAL_ERROR "${target} depends on ${room}, which is no room (or has no sources yet)")
    endif()
    get_target_property(roomKind ${room} STUDIO_KIND)
    if(roomKind STREQUAL "widgets")
      set(kind widgets)
    endif()
  endforeach()
  target_link_libraries(${target} PRIVATE studio_flags ${visibility} ${depends} ${libs})
  set_target_properties(${target} PROPERTIES AUTOMOC ON STUDIO_KIND ${kind})
  target_precompile_headers(${target} REUSE_FROM pch_${kind})
endfunction()

function(studio_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;LIBS;FOLDERS")
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB more CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND sources ${more})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  studio_link(${name} PUBLIC "${arg_DEPENDS}" "${arg_LIBS}")
endfunction()

function(studio_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;LIBS")
  add_executable(${name} main.cpp)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  studio_link(${name} PRIVATE "${arg_DEPENDS}" "${arg_LIBS}")
endfunction()

# A test sees no screen and none of the user's settings; leaks of the system's libraries do not count.
function(studio_test_properties name timeout)
  string(REPLACE "/" "_" home ${name})
  set(home ${CMAKE_BINARY_DIR}/homes/${home})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${timeout}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${STUDIO_LSAN_SUPPRESSIONS}:print_suppressions=0")
endfunction()

# A test is one source, which includes NAME.moc: one call of moc instead of AUTOMOC's three build steps, which for all
# tests together took minutes.
function(studio_test_moc target source)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/moc/${target})
  add_custom_command(
    OUTPUT ${folder}/${target}.moc
    COMMAND Qt6::moc ${source} -o ${folder}/${target}.moc
    DEPENDS ${source}
    COMMENT "moc ${target}"
    VERBATIM)
  file(MAKE_DIRECTORY ${folder})
  set_target_properties(${target} PROPERTIES AUTOMOC OFF)
  target_sources(${target} PRIVATE ${folder}/${target}.moc)
  target_include_directories(${target} PRIVATE ${folder})
  # What needs every moc and nothing else builds this one beside `autogen`.
  if(NOT TARGET test_mocs)
    add_custom_target(test_mocs)
  endif()
  add_custom_target(${target}_moc DEPENDS ${folder}/${target}.moc)
  add_dependencies(test_mocs ${target}_moc)
endfunction()

function(studio_test path)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "DEPENDS;LIBS")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  cmake_path(GET path FILENAME name)
  add_executable(${name} ${CMAKE_SOURCE_DIR}/tests/${path}.cpp)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  studio_link(${name} PRIVATE "${arg_DEPENDS}" "${arg_LIBS};Qt6::Test")
  studio_test_moc(${name} ${CMAKE_SOURCE_DIR}/tests/${path}.cpp)
  add_test(NAME ${path} COMMAND ${name})
  studio_test_properties(${path} ${arg_TIMEOUT})
endfunction()

function(studio_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;LIBS")
  add_executable(${name} ${CMAKE_SOURCE_DIR}/bench/${name}.cpp)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  studio_link(${name} PRIVATE "${arg_DEPENDS}" "${arg_LIBS};benchmark::benchmark;benchmark::benchmark_main")
  add_dependencies(benches ${name})
endfunction()

# With STUDIO_FUZZ a libFuzzer executable; otherwise a test that feeds the committed corpus to the same code.
function(studio_fuzz name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;LIBS")
  add_executable(fuzz_${name} ${CMAKE_SOURCE_DIR}/fuzz/${name}.cpp)
  set_target_properties(fuzz_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzz)
  studio_link(fuzz_${name} PRIVATE "${arg_DEPENDS}" "${arg_LIBS}")
  set_target_properties(fuzz_${name} PROPERTIES AUTOMOC OFF) # none declares a QObject
  if(STUDIO_FUZZ)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzzers fuzz_${name})
  else()
    target_link_libraries(fuzz_${name} PRIVATE fuzz_replay)
    add_test(NAME fuzz/${name} COMMAND fuzz_${name} ${CMAKE_SOURCE_DIR}/fuzz/corpus/${name})
    studio_test_properties(fuzz/${name} 120)
    set_tests_properties(fuzz/${name} PROPERTIES LABELS fuzz)
  endif()
endfunction()
