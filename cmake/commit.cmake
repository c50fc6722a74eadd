# Writes the source that knows version and commit. Run at each build; the file is touched only when
# something else would be in it.
# Usage: cmake -D source=FOLDER -D output=FILE -D major=N -D minor=N -P commit.cmake
execute_process(
  COMMAND git -c safe.directory=* -C ${source} describe --always --abbrev=10 --exclude=* --dirty=+
  OUTPUT_VARIABLE commit RESULT_VARIABLE failed ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
if(failed)
  set(commit unknown)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/commit.cpp.in ${output} @ONLY)
