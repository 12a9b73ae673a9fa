# Libraries of others that are headers alone. A package that CMake finds for the target system, as vcpkg's, comes first.
# Debian has the headers for itself only, though they serve every system: a cross build takes them from there too. Their
# folder's neighbours would not serve, so the build folder gets a folder with these headers alone.
include_guard(GLOBAL)

# lumora_headers(TARGET PACKAGE IMPORTED HEADER DEBIAN): HEADER as "folder/file".
function(lumora_headers target package imported header debian)
  add_library(${target} INTERFACE)
  find_package(${package} CONFIG QUIET GLOBAL)
  if(TARGET ${imported})
    target_link_libraries(${target} INTERFACE ${imported})
    return()
  endif()
  string(TOUPPER "${package}_HEADERS" variable)
  find_path(LUMORA_${variable} "${header}" PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH
    DOC "The folder in which ${header} lies")
  set(found "${LUMORA_${variable}}")
  if(NOT found)
    message(FATAL_ERROR "${header} was not found. Install Debian's package ${debian}, or let vcpkg install what "
      "vcpkg.json names, or set LUMORA_${variable} to the folder in which it lies.")
  endif()
  get_filename_component(folder "${header}" DIRECTORY)
  set(own "${PROJECT_BINARY_DIR}/third-party/${target}")
  if(NOT EXISTS "${own}/${header}")
    file(REMOVE_RECURSE "${own}")
    file(MAKE_DIRECTORY "${own}")
    file(CREATE_LINK "${found}/${folder}" "${own}/${folder}" RESULT failure SYMBOLIC)
    if(failure)
      file(COPY "${found}/${folder}" DESTINATION "${own}")
    endif()
  endif()
  target_include_directories(${target} SYSTEM INTERFACE "${own}")
endfunction()

lumora_headers(lumora_json nlohmann_json nlohmann_json::nlohmann_json nlohmann/json.hpp nlohmann-json3-dev)
lumora_headers(lumora_command_line CLI11 CLI11::CLI11 CLI/CLI.hpp libcli11-dev)
