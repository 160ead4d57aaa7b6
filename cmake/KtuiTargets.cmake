# Compiler settings shared by every target, and the functions that declare a module and a test program.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# The compiler's run-time DLLs go beside ours: exceptions cross our DLLs, so all of them share one copy.
if(MINGW)
  set(KTUI_RUNTIME_DLLS "")
  foreach(runtime libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime} OUTPUT_VARIABLE found
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${found}")
      set(found /usr/x86_64-w64-mingw32/lib/${runtime})
    endif()
    list(APPEND KTUI_RUNTIME_DLLS "${found}")
    file(COPY_FILE "${found}" "${CMAKE_BINARY_DIR}/bin/${runtime}" ONLY_IF_DIFFERENT)
  endforeach()
endif()

find_program(KTUI_CCACHE ccache)
if(KTUI_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KTUI_CCACHE})
endif()

add_library(ktui_settings INTERFACE)
if(MSVC)
  target_compile_options(ktui_settings INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus)
else()
  target_compile_options(ktui_settings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wshadow;-Werror>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # CRect and its like compare with the plain structure, as documented; the reversed candidate is no matter.
  target_compile_options(ktui_settings INTERFACE -Wno-ambiguous-reversed-operator)
endif()
if(WIN32)
  target_compile_definitions(ktui_settings INTERFACE
    UNICODE _UNICODE STRICT NOMINMAX _WIN32_WINNT=0x0A00 WINVER=0x0A00 _WIN32_IE=0x0A00)
  # Message-map entries store member functions of many signatures under one type.
  if(NOT MSVC)
    target_compile_options(ktui_settings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-cast-function-type;-Wno-unknown-pragmas;-g1>)
  endif()
  if(KTUI_CHECKED)
    target_compile_definitions(ktui_settings INTERFACE _GLIBCXX_ASSERTIONS)
    target_compile_options(ktui_settings INTERFACE
      $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined;-fno-sanitize=null,vptr;-fsanitize-undefined-trap-on-error>)
  endif()
else()
  if(KTUI_SANITIZE)
    target_compile_options(ktui_settings INTERFACE -fsanitize=${KTUI_SANITIZE} -fno-sanitize-recover=all
                           -fno-omit-frame-pointer)
    target_link_options(ktui_settings INTERFACE -fsanitize=${KTUI_SANITIZE})
  endif()
  if(KTUI_FUZZ)
    target_compile_options(ktui_settings INTERFACE -fsanitize=fuzzer-no-link)
  endif()
  if(KTUI_COVERAGE)
    target_compile_options(ktui_settings INTERFACE --coverage)
    target_link_options(ktui_settings INTERFACE --coverage)
  endif()
endif()

# Tests aren't optimised: compiling them takes half the time so, and what they try stands in the modules.
add_library(ktui_test_settings INTERFACE)
target_link_libraries(ktui_test_settings INTERFACE ktui_settings)
if(MINGW)
  target_compile_options(ktui_test_settings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
endif()

# ktui_public_headers(target folder destination)
# Makes the headers in `folder` the target's public ones, and installs the target and them (on Windows).
function(ktui_public_headers target folder destination)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${folder}> $<INSTALL_INTERFACE:${destination}>)
  if(WIN32)
    install(TARGETS ${target} EXPORT ktui)
    install(DIRECTORY ${folder}/ DESTINATION ${destination} FILES_MATCHING PATTERN *.h PATTERN afx*.rc
            PATTERN standin_facets.h EXCLUDE PATTERN standin_message.h EXCLUDE PATTERN file_bytes.h EXCLUDE PATTERN own_resources.h EXCLUDE PATTERN color_schemes.h EXCLUDE PATTERN dialog_items.h EXCLUDE PATTERN resource.h EXCLUDE PATTERN color_dialog.h EXCLUDE
            PATTERN fonts EXCLUDE PATTERN help EXCLUDE PATTERN security EXCLUDE PATTERN linetypes EXCLUDE PATTERN plotting EXCLUDE)
  endif()
endfunction()

# ktui_precompile(target header ...)
# Compiles the headers once for a Windows target; <windows.h> behind them costs seconds a unit otherwise.
function(ktui_precompile target)
  if(WIN32)
    list(TRANSFORM ARGN REPLACE "^(.+)$" "$<$<COMPILE_LANGUAGE:CXX>:<\\1$<ANGLE-R>>")
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# ktui_module(name CORE unit.cpp ... WINDOW unit.cpp ... LINK target ... PRIVATE_LINK target ...)
# Declares module `name`: NAME.dll of all units on Windows, a static library of the CORE units natively.
# <NAME>_EXPORTS is defined while it is compiled on Windows. LINK edges are public and are the only include
# directions the module has. A module without CORE units is not there natively.
function(ktui_module name)
  cmake_parse_arguments(M "" "" "CORE;WINDOW;LINK;WINDOW_LINK;SYSTEM" ${ARGN})
  string(TOUPPER "${name}" upper)
  if(WIN32)
    add_library(${name} SHARED ${M_CORE} ${M_WINDOW})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "lib" DEFINE_SYMBOL ${upper}_EXPORTS)
    target_link_libraries(${name} PUBLIC ${M_LINK} ${M_WINDOW_LINK} PRIVATE ${M_SYSTEM} $<BUILD_INTERFACE:ktui_settings>)
  else()
    if(NOT M_CORE)
      return()
    endif()
    add_library(${name} STATIC ${M_CORE})
    target_link_libraries(${name} PUBLIC ${M_LINK} PRIVATE $<BUILD_INTERFACE:ktui_settings>)
  endif()
endfunction()

# ktui_test(name LABEL core|ui|journey SOURCES ... LINK target ...)
# Declares the GoogleTest program `name`. Each of its tests becomes one CTest test when native; on Windows the
# program is one CTest test, because starting a process costs more than most tests.
function(ktui_test name)
  cmake_parse_arguments(T "" "LABEL;TIMEOUT" "SOURCES;LINK" ${ARGN})
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 300)
  endif()
  add_executable(${name} ${T_SOURCES})
  if(T_LABEL STREQUAL "core")
    set(common ktui_gtest_main)
  else()
    set(common ktui_ui_test)
  endif()
  target_link_libraries(${name} PRIVATE ${T_LINK} ${common} ktui_test_settings)
  # One precompiled header serves them all: making it takes as long as compiling several tests.
  if(WIN32)
    target_precompile_headers(${name} REUSE_FROM ${common})
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS ${T_LABEL} TIMEOUT ${T_TIMEOUT})
endfunction()
