# embed_text(TARGET FILE HEADER FUNCTION): compiles the text of FILE into TARGET; HEADER declares
# `std::string_view FUNCTION()` of the namespace vantorel, which gives it.
function(embed_text target file header function)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  file(READ "${file}" text)
  get_filename_component(name "${header}" NAME_WE)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" @ONLY NEWLINE_STYLE UNIX CONTENT [[
#include "@header@"

namespace vantorel {

std::string_view @function@() { return R"embedded(@text@)embedded"; }

}  // namespace vantorel
]])
  target_sources(${target} PRIVATE "${source}")
endfunction()
