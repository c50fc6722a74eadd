# Run by CPack with everything that is to be shipped in CPACK_TEMPORARY_DIRECTORY.
# The packages do not depend on when and where they are made: all times are that of the commit, and
# files stand in the order of their names.
set(staged ${CPACK_TEMPORARY_DIRECTORY})
set(source ${CPACK_QUENDA_SOURCE})
set(version ${CPACK_PACKAGE_VERSION})
set(output ${CPACK_PACKAGE_DIRECTORY})
file(MAKE_DIRECTORY ${output})
if(CPACK_QUENDA_WINDOWS)
  set(script windows/make_packages)
else()
  set(script debian/make_package)
endif()
execute_process(
  COMMAND ${source}/packaging/${script} ${staged} ${version} ${output}
  COMMAND_ERROR_IS_FATAL ANY)
