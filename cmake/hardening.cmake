# What makes it harder to turn a fault of the programs into an attack; and the same sources give the
# same program, wherever and whenever it is built.
if(MSVC)
  add_compile_options(/guard:cf)
  add_link_options(/guard:cf /CETCOMPAT /DYNAMICBASE /NXCOMPAT /HIGHENTROPYVA /DEPENDENTLOADFLAG:0x800)
elseif(WIN32)
  # Random addresses and no code on the stack are the linker's defaults; said here so that they stay.
  # The cross compiler has no control-flow guard for Windows; return addresses are guarded by canaries.
  add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>")
  # (Their handler comes from a library that the compiler names only when it is told here, too.)
  add_link_options($<$<CONFIG:Release>:-fstack-protector-strong>)
  add_link_options(-Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_CXX_FLAGS MATCHES "sanitize")
  add_compile_options(
    "$<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection;-fcf-protection>"
    "$<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2;-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>")
  add_link_options($<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
endif()
