# Run as a script: writes every character beyond ASCII that the sources in the directory SOURCES contain to OUTPUT,
# which stays untouched when it would not change.
file(GLOB_RECURSE files "${SOURCES}/*.h" "${SOURCES}/*.cpp")
set(characters "")
foreach(file IN LISTS files)
  file(READ "${file}" text)
  string(REGEX REPLACE "[ -~\n\t]+" "" text "${text}")
  string(APPEND characters "${text}")
endforeach()
file(CONFIGURE OUTPUT "${OUTPUT}" CONTENT "${characters}" @ONLY)
