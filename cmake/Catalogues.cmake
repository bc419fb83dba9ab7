# Compiles a catalogue of messages and appends the made file to the list named RESULT. Fails on malformed messages.
find_program(MSGFMT msgfmt REQUIRED)
function(mirune_catalogue RESULT PO MO)
  cmake_path(GET MO PARENT_PATH folder)
  add_custom_command(
    OUTPUT "${MO}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
    COMMAND "${MSGFMT}" --check ${ARGN} -o "${MO}" "${PO}"
    DEPENDS "${PO}"
    VERBATIM)
  set(${RESULT} ${${RESULT}} "${MO}" PARENT_SCOPE)
endfunction()
