# mirune_module(NAME [SOURCES file...] [LINK target...] [PRIVATE_LINK target...])
#
# One library per folder, named for it. Its headers are included as "NAME/header.hpp", and only by targets that link
# it: each module exports an include root of its own that holds nothing but a link to its folder. A wrong include
# therefore does not build.
function(mirune_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;PRIVATE_LINK")
  set(root "${CMAKE_BINARY_DIR}/include-roots/${name}")
  file(MAKE_DIRECTORY "${root}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${name}" SYMBOLIC)
  if(arg_SOURCES)
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${root}")
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${root}")
    target_link_libraries(${name} INTERFACE ${arg_LINK})
  endif()
endfunction()
