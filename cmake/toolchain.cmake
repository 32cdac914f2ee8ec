# How every target is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# A cache and a fast linker are used where they are present, and never asked for.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers are cacheable only with these two. What a source includes comes from the
  # compiler's own list, so that nothing is preprocessed twice.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1 ${CCACHE})
endif()
find_program(LLD ld.lld)
if(LLD)
  add_link_options(-fuse-ld=lld)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                    -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 misjudges the standard library's strings: it takes their operator+ for an overlapping copy,
  # and, where headers are precompiled, their comparison for one beyond all bounds. The sanitizers
  # look after both.
  add_compile_options(-fcoroutines -Wno-restrict -Wno-array-bounds
                      -Wno-stringop-overflow -Wno-stringop-overread)
endif()

if(CMAKE_UNITY_BUILD)
  # Sources that are compiled together are taken for headers of one that is not ours: GCC misses the
  # linkage of their unnamed types, and clang takes a name of one for hidden by the next.
  add_compile_options($<IF:$<CXX_COMPILER_ID:GNU>,-Wno-subobject-linkage,-Wno-shadow>)
endif()

# What is packaged reads what strangers send.
set(packaged $<CONFIG:Release,RelWithDebInfo>)
add_compile_options($<${packaged}:-D_FORTIFY_SOURCE=2> $<${packaged}:-fstack-protector-strong>)
add_link_options($<${packaged}:LINKER:-z,relro,-z,now>)

if(MOLVA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-maybe-uninitialized)  # false alarms in the standard library's regex
  endif()
  add_link_options(-fsanitize=address,undefined)
endif()

if(MOLVA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(MOLVA_LINT)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  set(CMAKE_CXX_CLANG_TIDY ${CLANG_TIDY} --quiet)
  # What moc writes is not ours to tidy; one check has to stay, or clang-tidy refuses to run.
  file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,misc-definitions-in-headers'\n")
endif()
