# Debian wants manual pages and the changelog compressed, and the same bytes each time.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(GLOB_RECURSE files ${share}/man/*.1 ${share}/doc/*/changelog)
execute_process(COMMAND gzip -9n ${files} COMMAND_ERROR_IS_FATAL ANY)
