# Every warning is an error, in the product and in the tests.
set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
if(MSVC)
  add_compile_options(/W4 /permissive- /utf-8)
else()
  add_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor)
  # Optimising g++ 12 takes joined short strings for writes beyond their buffer.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(
      -Wno-array-bounds -Wno-restrict $<$<CONFIG:Release>:-Wno-stringop-overflow>)
  endif()
endif()
