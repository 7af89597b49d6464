# A subsystem is a folder of src/ with two targets: its logic (Qt Core only) and its forms (Qt Widgets).
#
#   add_subsystem(sheet)                        in the top file, one line a subsystem
#   subsystem_logic(sheet SOURCES ... USES core)       in src/sheet/CMakeLists.txt
#   subsystem_forms(sheet SOURCES ... USES core)       the same, for src/sheet/forms/
#
# USES names the subsystems whose logic (and, for forms, whose forms too) this one builds on.

function(add_subsystem name)
  add_subdirectory("${CMAKE_SOURCE_DIR}/src/${name}")
endfunction()

function(subsystem_logic name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
  add_library(cibra_${name} STATIC ${ARG_SOURCES})
  target_include_directories(cibra_${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
  target_link_libraries(cibra_${name} PUBLIC Qt6::Core)
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(cibra_${name} PUBLIC cibra_${used})
  endforeach()
  target_link_libraries(cibra_${name} PRIVATE ${ARG_LIBRARIES})
endfunction()

function(subsystem_forms name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
  add_library(cibra_${name}_forms STATIC ${ARG_SOURCES})
  target_link_libraries(cibra_${name}_forms PUBLIC cibra_${name} Qt6::Widgets ${ARG_LIBRARIES})
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(cibra_${name}_forms PUBLIC cibra_${used}_forms)
  endforeach()
endfunction()
