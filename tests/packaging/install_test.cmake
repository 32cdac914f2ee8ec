# Installs the build into an empty folder, as a distribution does, and looks at what stands there.
cmake_minimum_required(VERSION 3.25)
set(destination ${BUILD}/tests/packaging/root)
set(root ${destination}/usr)
file(REMOVE_RECURSE ${destination})
set(ENV{DESTDIR} ${destination})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix /usr
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

set(expected
  bin/molva-desk
  bin/molva-practice-node
  bin/molva-practice-tnc
  share/applications/molva-desk.desktop
  share/doc/molva-desk/changelog
  share/doc/molva-desk/copyright
  share/icons/hicolor/scalable/apps/molva-desk.svg
  share/man/man1/molva-desk.1
  share/man/man1/molva-practice-node.1
  share/man/man1/molva-practice-tnc.1
  share/metainfo/molva.desk.client.metainfo.xml
)
file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${root} ${destination}/*)
if(NOT "share/doc/molva-desk/manual/index.md" IN_LIST found)
  message(FATAL_ERROR "there is no manual")
endif()
list(FILTER found EXCLUDE REGEX "^share/doc/molva-desk/(pictures/.*\\.png|manual/.*\\.md)$")
if(NOT found STREQUAL expected)
  message(FATAL_ERROR "installed: ${found}")
endif()

foreach(file share/doc/molva-desk/changelog share/man/man1/molva-desk.1
             share/man/man1/molva-practice-node.1 share/man/man1/molva-practice-tnc.1
             share/metainfo/molva.desk.client.metainfo.xml)
  file(READ ${root}/${file} content)
  if(NOT content MATCHES "${VERSION}")
    message(FATAL_ERROR "${file} does not name the version")
  endif()
  if(content MATCHES "@[A-Z_]+@")
    message(FATAL_ERROR "${file} holds ${CMAKE_MATCH_0}")
  endif()
endforeach()
