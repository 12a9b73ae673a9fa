# How everything in this tree is compiled: language, warnings, sanitizers, hardening.
include_guard()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
# The library brings its C++ runtime along. Whatever it is linked with has to be built for the same one; a caller whose
# libraries are not sets another. GoogleTest's source declares old policies and would not follow by itself.
if(NOT CMAKE_MSVC_RUNTIME_LIBRARY)
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
endif()
set(CMAKE_POLICY_DEFAULT_CMP0091 NEW)

if(WIN32)
  enable_language(RC)
  # Windows 10 is the oldest system; the explicit returns give methods that return structures the right ABI in GCC.
  add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00 NTDDI_VERSION=0x0A000006
                          WIDL_EXPLICIT_AGGREGATE_RETURNS)
endif()

if(MSVC)
  add_compile_options(/utf-8 /permissive- /guard:cf)
  add_link_options(/guard:cf /DYNAMICBASE /NXCOMPAT /HIGHENTROPYVA)
else()
  # One commit gives the same bytes wherever the tree lies and whenever it is built.
  add_compile_options(-fstack-protector-strong $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>
    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=." "-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build")
  add_link_options(-fstack-protector-strong)
  if(MINGW)
    set(lumoraStrip "$<$<AND:$<CONFIG:Release>,$<NOT:$<BOOL:$<TARGET_PROPERTY:LUMORA_SHIPPED>>>>:-s>")
    add_link_options(-static ${lumoraStrip} -Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp)
  endif()
endif()

if(LUMORA_SANITIZER STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(LUMORA_SANITIZER STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(LUMORA_SANITIZER STREQUAL "fuzzer")
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(LUMORA_SANITIZER)
  message(FATAL_ERROR "LUMORA_SANITIZER is \"${LUMORA_SANITIZER}\"; it may be empty, address, thread or fuzzer.")
endif()

# Every program that links a room brings the counting along. Two processes may run at a time, and several threads.
function(lumora_counted target)
  if(LUMORA_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
  endif()
endfunction()
if(LUMORA_COVERAGE)
  add_link_options(--coverage)
endif()

# Warnings are errors in our own code; what comes from elsewhere is compiled as it is.
function(lumora_own_code target)
  if(MSVC)
    # 4458: a constructor's parameter may carry the name of the member that it fills.
    target_compile_options(${target} PRIVATE /W4 /WX /wd4458)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
  endif()
endfunction()

# The sources of a test or a program are compiled some at a time in one go: nearly all the time goes into headers that they
# share. Without it each file shows that it includes what it uses. The library's own are compiled each by itself.
option(LUMORA_JOIN_SOURCES "Compile several sources of tests and programs in one go" ON)
function(lumora_join_sources target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${LUMORA_JOIN_SOURCES} UNITY_BUILD_BATCH_SIZE 8)
endfunction()

# What goes to hosts keeps its debug symbols, in a file of its own beside it. -p keeps the linker's time stamp, which is none.
function(lumora_shipped target)
  set_target_properties(${target} PROPERTIES LUMORA_SHIPPED ON)
  if(MINGW)
    add_custom_command(TARGET ${target} POST_BUILD
      COMMAND ${CMAKE_OBJCOPY} -p --only-keep-debug "$<TARGET_FILE:${target}>" "$<TARGET_FILE:${target}>.debug"
      COMMAND ${CMAKE_OBJCOPY} -p --strip-all "--add-gnu-debuglink=$<TARGET_FILE:${target}>.debug" "$<TARGET_FILE:${target}>" VERBATIM)
  elseif(MSVC)
    target_link_options(${target} PRIVATE /DEBUG /OPT:REF /OPT:ICF)
    # All that it is linked with comes from the system's folder, and no file beside the program takes its place. A runtime that is
    # a library may lie there.
    if(NOT CMAKE_MSVC_RUNTIME_LIBRARY MATCHES "DLL$")
      target_link_options(${target} PRIVATE /DEPENDENTLOADFLAG:0x800)
    endif()
  endif()
endfunction()

# The sources of what goes to hosts are compiled with debug symbols, which change no instruction.
function(lumora_with_symbols target)
  if(MSVC)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:/Zi>)
  else()
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-g>)
  endif()
endfunction()

# A room: a library of files of src/ that include each other and the headers of the rooms that they NEED, and nothing
# else; the build fails where one does. A PORTABLE room keeps to the standard library, one of OBJECTS is linked whole. A
# folder may hold more than one.
function(lumora_room name)
  cmake_parse_arguments(room "OBJECTS;PORTABLE" "" "SOURCES;NEEDS" ${ARGN})
  set(target lumora_${name})
  if(room_SOURCES MATCHES "\\.cpp")
    set(scope PUBLIC)
    if(room_OBJECTS)
      add_library(${target} OBJECT ${room_SOURCES})
    else()
      add_library(${target} STATIC ${room_SOURCES})
    endif()
    lumora_own_code(${target})
    lumora_with_symbols(${target})
    lumora_counted(${target})
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE ${room_SOURCES})
  endif()
  target_include_directories(${target} ${scope} "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/include")
  target_link_libraries(${target} ${scope} ${room_NEEDS})

  file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
  list(TRANSFORM room_SOURCES PREPEND "${folder}/" OUTPUT_VARIABLE files)
  set(visible ${files})
  foreach(needed IN LISTS room_NEEDS)
    if(TARGET ${needed})
      get_target_property(seen ${needed} LUMORA_VISIBLE)
      list(APPEND visible ${seen})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES visible)
  set_target_properties(${target} PROPERTIES LUMORA_VISIBLE "${visible}")
  set_property(GLOBAL APPEND PROPERTY LUMORA_FILES ${files})

  set(checked "${CMAKE_CURRENT_BINARY_DIR}/${name}-includes")
  add_custom_command(OUTPUT "${checked}"
    COMMAND ${CMAKE_COMMAND} -D "FILES=${files}" -D "VISIBLE=${visible}" -D PORTABLE=${room_PORTABLE}
      -D "SOURCE=${PROJECT_SOURCE_DIR}" -P "${PROJECT_SOURCE_DIR}/cmake/RoomIncludes.cmake"
    COMMAND ${CMAKE_COMMAND} -E touch "${checked}"
    DEPENDS ${room_SOURCES} "${PROJECT_SOURCE_DIR}/cmake/RoomIncludes.cmake"
    COMMENT "Looking at the includes of room ${name}" VERBATIM)
  target_sources(${target} PRIVATE "${checked}")
endfunction()

# After the last room: a file in none of them would be seen by nobody and judged by nobody.
function(lumora_all_in_rooms)
  get_property(known GLOBAL PROPERTY LUMORA_FILES)
  file(GLOB_RECURSE present RELATIVE "${PROJECT_SOURCE_DIR}/src" CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/src/*.h" "${PROJECT_SOURCE_DIR}/src/*.cpp")
  list(REMOVE_ITEM present ${known})
  if(present)
    message(FATAL_ERROR "in no room: ${present}")
  endif()
endfunction()
