# ktui_add_resources(target script.rc ... [CODE_PAGE N])
# Adds resource scripts as resource editors keep them to a target: UTF-16 or in a code page (N where a script does not
# say; 1252 without it), DLGINIT blocks, TEXTINCLUDE, file names with backslashes. windres gets a rewritten copy;
# other resource compilers get the scripts as they are. Needs Python 3 with windres.
set(_ktui_rc_for_windres "${CMAKE_CURRENT_LIST_DIR}/rc_for_windres.py")

function(ktui_add_resources target)
  cmake_parse_arguments(R "" "CODE_PAGE" "" ${ARGN})
  if(NOT R_CODE_PAGE)
    set(R_CODE_PAGE 1252)
  endif()
  if(NOT MINGW)
    target_sources(${target} PRIVATE ${R_UNPARSED_ARGUMENTS})
    return()
  endif()
  find_program(KTUI_PYTHON NAMES python3 python REQUIRED)
  foreach(script ${R_UNPARSED_ARGUMENTS})
    get_filename_component(source "${script}" ABSOLUTE)
    get_filename_component(folder "${source}" DIRECTORY)
    get_filename_component(name "${source}" NAME_WE)
    set(result "${CMAKE_CURRENT_BINARY_DIR}/${target}_resources/${name}.rc")
    # Whatever lies beside the script may be part of it.
    file(GLOB beside CONFIGURE_DEPENDS "${folder}/*.h" "${folder}/*.rc" "${folder}/*.rc2" "${folder}/res/*")
    add_custom_command(OUTPUT "${result}"
      COMMAND ${KTUI_PYTHON} "${_ktui_rc_for_windres}" "${source}" "${result}" --code-page ${R_CODE_PAGE}
      DEPENDS "${source}" "${_ktui_rc_for_windres}" ${beside} VERBATIM)
    set_source_files_properties("${result}" PROPERTIES OBJECT_DEPENDS "${beside}"
                                INCLUDE_DIRECTORIES "${CMAKE_CURRENT_BINARY_DIR}/${target}_resources;${folder}")
    target_sources(${target} PRIVATE "${result}")
  endforeach()
endfunction()
