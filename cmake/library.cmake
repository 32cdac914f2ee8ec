# molva_library(NAME SOURCES ... [LINK ...]): one library a folder of src/.
# Headers are included as "folder/file.h", from src/.
function(molva_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${arg_LINK})
endfunction()

# molva_qt_headers(TARGET HEADER ...): precompiles the Qt headers that a target includes most.
function(molva_qt_headers name)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()
