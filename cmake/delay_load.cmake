# quenda_delay_load(TARGET LIBRARY FUNCTION...): programs that use TARGET load LIBRARY.dll when one of
# the functions, all that are used of it, is called for the first time.
function(quenda_delay_load target library)
  if(MSVC)
    target_link_libraries(${target} PUBLIC ${library} delayimp)
    target_link_options(${target} PUBLIC /DELAYLOAD:${library}.dll)
    return()
  endif()
  # The cross compiler's linker has no option for it; its import libraries have. Their first call
  # loses floating point arguments: no function that takes some may be among them.
  set(folder ${CMAKE_BINARY_DIR}/delayed)
  list(JOIN ARGN "\n" functions)
  file(CONFIGURE OUTPUT ${folder}/${library}.def
    CONTENT "LIBRARY ${library}.dll\nEXPORTS\n${functions}\n")
  add_custom_command(OUTPUT ${folder}/lib${library}.a
    # Symbols get the name of the import library, so that has to be the same in every folder.
    COMMAND ${CMAKE_DLLTOOL} --input-def ${library}.def --output-delaylib lib${library}.a
    WORKING_DIRECTORY ${folder}
    DEPENDS ${folder}/${library}.def)
  add_custom_target(delayed_${library} DEPENDS ${folder}/lib${library}.a)
  add_dependencies(${target} delayed_${library})
  target_link_libraries(${target} PUBLIC ${folder}/lib${library}.a)
endfunction()
