# The forms of the program: KONTORWERK_FORMS lists every *.ui, and kontorwerk_designs is the design table made of them.
# The table needs nothing of Qt; only its generator does, while the program is built. The control objects of
# kontorwerk_platform read it.
include_guard(GLOBAL)

file(GLOB KONTORWERK_FORMS CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/shell/*.ui ${CMAKE_SOURCE_DIR}/documents/*.ui ${CMAKE_SOURCE_DIR}/partners/*.ui
  ${CMAKE_SOURCE_DIR}/stock/*.ui ${CMAKE_SOURCE_DIR}/receivables/*.ui ${CMAKE_SOURCE_DIR}/orders/*.ui
  ${CMAKE_SOURCE_DIR}/calendar/*.ui ${CMAKE_SOURCE_DIR}/admin/*.ui ${CMAKE_SOURCE_DIR}/support/*.ui
  ${CMAKE_SOURCE_DIR}/update/*.ui)

# kontorwerk_form_designs(TARGET FORM...): the library TARGET with the design table of the given forms.
function(kontorwerk_form_designs target)
  set(folder ${CMAKE_BINARY_DIR}/${target})
  file(MAKE_DIRECTORY ${folder})
  # The list is a file, so that a form that goes away makes a new table, too.
  list(JOIN ARGN "\n" lines)
  file(CONFIGURE OUTPUT ${folder}/forms.txt CONTENT "${lines}\n" @ONLY)
  add_custom_command(OUTPUT ${folder}/FormDesigns.cpp
    COMMAND form-design ${folder}/FormDesigns.cpp @${folder}/forms.txt
    DEPENDS form-design ${folder}/forms.txt ${ARGN}
    COMMENT "Design table of the forms" VERBATIM)
  add_library(${target} STATIC ${folder}/FormDesigns.cpp)
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
endfunction()

add_subdirectory(${CMAKE_SOURCE_DIR}/tools/form-design ${CMAKE_BINARY_DIR}/form-design-tool)
kontorwerk_form_designs(kontorwerk_designs ${KONTORWERK_FORMS})
