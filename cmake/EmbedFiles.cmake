# kontorwerk_embed(TARGET FUNCTION FILE...): a library whose function `const std::vector<kontorwerk::EmbeddedFile>& FUNCTION()` gives
# the names (UTF-8) and bytes of the files; see platform/EmbeddedFile.h.
enable_language(ASM)

function(kontorwerk_embed target function)
  set(assembly "    .section .rodata\n")
  set(declarations "")
  set(entries "")
  set(number 0)
  foreach(file ${ARGN})
    get_filename_component(name ${file} NAME)
    set(symbol ${target}_${number})
    string(APPEND assembly "    .globl ${symbol}_begin\n    .globl ${symbol}_end\n${symbol}_begin:\n    .incbin \"${file}\"\n${symbol}_end:\n    .byte 0\n")
    string(APPEND declarations "extern const char ${symbol}_begin[], ${symbol}_end[];\n")
    string(APPEND entries "      {\"${name}\", {${symbol}_begin, static_cast<std::size_t>(${symbol}_end - ${symbol}_begin)}},\n")
    math(EXPR number "${number} + 1")
  endforeach()
  string(APPEND assembly "    .section .note.GNU-stack,\"\",@progbits\n")
  set(base ${CMAKE_BINARY_DIR}/${target})
  file(CONFIGURE OUTPUT ${base}.S CONTENT "${assembly}" @ONLY)
  file(CONFIGURE OUTPUT ${base}.cpp CONTENT "#include \"platform/EmbeddedFile.h\"

#include <cstddef>

extern \"C\" {
${declarations}}

namespace kontorwerk {

const std::vector<EmbeddedFile>& ${function}() {
  static const std::vector<EmbeddedFile> kFiles = {
${entries}  };
  return kFiles;
}

}  // namespace kontorwerk
" @ONLY)
  set_source_files_properties(${base}.S PROPERTIES OBJECT_DEPENDS "${ARGN}")
  add_library(${target} STATIC ${base}.cpp ${base}.S)
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
endfunction()
