# molva_library(NAME [QT] SOURCES ... [LINK ...] [HEADERS ...]): one library a folder of src/.
# Headers are included as "folder/file.h", from src/. HEADERS are those of others that its sources
# include most, and are precompiled; without them it takes those that the lowest library has compiled,
# the standard ones.
function(molva_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "QT" "" "SOURCES;LINK;HEADERS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${arg_LINK})
  set_target_properties(${name} PROPERTIES AUTOMOC ${arg_QT})
  if(arg_QT)
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)  # names in its sources may be alike
  endif()
  if(arg_HEADERS)
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
  else()
    target_precompile_headers(${name} REUSE_FROM molva_platform)
  endif()
endfunction()
