# Header library for the options of the console program, as target quenda_cli11. A cross compiler
# must not see the whole of this machine's /usr/include, so it gets a folder with that library only.
find_path(QUENDA_CLI11_INCLUDE CLI/CLI.hpp NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(include_folder ${QUENDA_CLI11_INCLUDE})
if(CMAKE_CROSSCOMPILING)
  set(include_folder ${CMAKE_BINARY_DIR}/include)
  file(MAKE_DIRECTORY ${include_folder})
  file(CREATE_LINK ${QUENDA_CLI11_INCLUDE}/CLI ${include_folder}/CLI SYMBOLIC)
endif()
add_library(quenda_cli11 INTERFACE)
target_include_directories(quenda_cli11 SYSTEM INTERFACE ${include_folder})
