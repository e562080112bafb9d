# add_layer(NAME DIRECTORY [LIBRARY...]): a static library of all sources of one directory. Its headers are
# included by their names alone, and only by targets that link it: an include against the direction of the
# layers finds no file.
function(add_layer name directory)
  file(GLOB sources CONFIGURE_DEPENDS "${directory}/*.cpp")
  if(sources)
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC "${directory}")
    target_link_libraries(${name} PUBLIC ${ARGN})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${directory}")
    target_link_libraries(${name} INTERFACE ${ARGN})
  endif()
endfunction()

# Like add_layer, for a directory with Qt's meta-objects.
function(add_qt_layer name directory)
  add_layer(${name} "${directory}" ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()
