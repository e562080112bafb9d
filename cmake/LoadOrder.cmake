# load_first(TARGET LIBRARY...): lets the loader search these libraries before all others for each name that a
# library asks for, in this order. Only those that Qt's graphical part loads here in any case are taken, so that no
# further one is loaded for it. Not for programs with a sanitizer, which must come first itself.
function(load_first target)
  if(VANTOREL_SANITIZE)
    return()
  endif()
  get_target_property(widgets Qt6::Widgets LOCATION)
  execute_process(COMMAND ldd "${widgets}" OUTPUT_VARIABLE loaded RESULT_VARIABLE failed)
  if(failed)
    return()
  endif()
  string(APPEND loaded "\tlibQt6Widgets.so.6 => ${widgets} (")  # ldd does not name the library itself
  set(paths "")
  foreach(library IN LISTS ARGN)
    string(REGEX REPLACE "([+.])" "[\\1]" name "${library}")
    if(loaded MATCHES "\t${name} => (/[^\n]+) [(]")
      list(APPEND paths "${CMAKE_MATCH_1}")
    endif()
  endforeach()
  # Nothing before them on the command line needs them: they would be left out.
  target_link_options(${target} PRIVATE LINKER:--push-state,--no-as-needed ${paths} LINKER:--pop-state)
endfunction()
