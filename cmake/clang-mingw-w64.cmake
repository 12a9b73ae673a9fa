# The same cross build by clang, over mingw-w64's headers, linker and C++ library: a second opinion on the sources.
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")

# clang does not look where Debian has put GCC's own files.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
  OUTPUT_VARIABLE gccFolder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(gccFolder "${gccFolder}" DIRECTORY)
set(CMAKE_CXX_FLAGS_INIT
  "-stdlib++-isystem ${gccFolder}/include/c++ -stdlib++-isystem ${gccFolder}/include/c++/x86_64-w64-mingw32")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-L${gccFolder} -pthread")
endforeach()

set(CMAKE_C_COMPILER clang)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_OBJCOPY x86_64-w64-mingw32-objcopy) # LLVM's cannot split symbols off
