# Builds fonts into the program: each is cut down to the characters of the program's texts, and these to all Latin
# letters, so that it starts without a look at the fonts of the system.

find_program(HB_SUBSET hb-subset REQUIRED)
find_program(FC_MATCH fc-match REQUIRED)
find_program(FC_QUERY fc-query REQUIRED)

# find_font(FILE INDEX PATTERN): the file of the installed font that fontconfig's PATTERN names, and its number there.
# The name is the English one, also where fontconfig would prefer another.
function(find_font file index pattern)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env FC_LANG=en ${FC_MATCH} --format "%{file};%{index};%{family[0]}" "${pattern}"
                  OUTPUT_VARIABLE match COMMAND_ERROR_IS_FATAL ANY)
  list(GET match 2 family)
  string(REGEX REPLACE ":.*" "" wanted "${pattern}")
  if(NOT family STREQUAL wanted)
    message(FATAL_ERROR "The font ${wanted} is not installed.")
  endif()
  list(GET match 0 found)
  list(GET match 1 number)
  set(${file} "${found}" PARENT_SCOPE)
  set(${index} "${number}" PARENT_SCOPE)
endfunction()

# embed_fonts(TARGET SOURCES PATTERN...): compiles fonts for all that the sources in the directory SOURCES say into
# TARGET, as the resources named "fonts": each as ":/fonts/PATTERN", and fontconfig's description of it, without its file
# and what nobody asks for, as ":/fontDescriptions/PATTERN".
function(embed_fonts target sources)
  set(directory "${CMAKE_CURRENT_BINARY_DIR}/fonts")
  set(characters "${directory}/characters.txt")
  file(GLOB_RECURSE texts CONFIGURE_DEPENDS "${sources}/*.h" "${sources}/*.cpp")
  set(script "${CMAKE_SOURCE_DIR}/cmake/NonAsciiCharacters.cmake")
  add_custom_command(OUTPUT "${characters}" DEPENDS ${texts} "${script}" VERBATIM
    COMMAND ${CMAKE_COMMAND} -DSOURCES=${sources} -DOUTPUT=${characters} -P "${script}")
  # Pictures elsewhere, these are bare symbols in the letters' fonts.
  set(pictures "U+2328,U+26A0")
  set(fonts "")
  set(entries "")
  set(descriptions "")
  foreach(pattern IN LISTS ARGN)
    find_font(file index "${pattern}")
    list(FIND ARGN "${pattern}" number)
    set(font "${directory}/${number}.ttf")
    set(without "")
    if(NOT pattern MATCHES "Emoji")
      set(without "--unicodes-=${pictures}")
    endif()
    add_custom_command(OUTPUT "${font}" DEPENDS "${characters}" VERBATIM
      COMMAND ${HB_SUBSET} --font-file=${file} --face-index=${index} --output-file=${font}
              --no-hinting --unicodes=U+0020-007E,U+00A0-017F --text-file=${characters} ${without})
    set(description "${directory}/${number}.description")
    add_custom_command(OUTPUT "${description}" DEPENDS "${font}" VERBATIM
      COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C ${FC_QUERY} --format "%{-file,familylang,stylelang,fullname,fullnamelang,fontversion,capability,postscriptname,decorative,order,foundry,symbol,fonthashint,fontformat,color,variable,outline{%{=unparse}}}" ${font} > ${description})
    list(APPEND fonts "${font}" "${description}")
    string(APPEND entries "<file alias=\"${pattern}\">${font}</file>")
    string(APPEND descriptions "<file alias=\"${pattern}\">${description}</file>")
  endforeach()
  set(list "${directory}/fonts.qrc")
  file(CONFIGURE OUTPUT "${list}" @ONLY CONTENT "<RCC><qresource prefix=\"/fonts\">${entries}</qresource><qresource \
prefix=\"/fontDescriptions\">${descriptions}</qresource></RCC>")
  set(source "${directory}/fonts.cpp")
  add_custom_command(OUTPUT "${source}" DEPENDS "${list}" ${fonts} VERBATIM
    COMMAND Qt6::rcc --no-compress --name fonts --output ${source} ${list})
  target_sources(${target} PRIVATE "${source}")
endfunction()
