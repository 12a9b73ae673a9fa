# Checks that the files of a room include only what their room may see: cmake -P, with a list of its FILES, a list of
# the headers that are VISIBLE to them, whether it is PORTABLE, and the tree's SOURCE. Every violation is printed.
cmake_minimum_required(VERSION 3.25)
set(violations 0)

function(report_violation file reason)
  message("${file}: ${reason}")
  math(EXPR count "${violations} + 1")
  set(violations ${count} PARENT_SCOPE)
endfunction()

foreach(file IN LISTS FILES)
  file(STRINGS "${SOURCE}/src/${file}" includes REGEX "^[ \t]*#[ \t]*include")
  foreach(line IN LISTS includes)
    if(line MATCHES "\"(lumora/[^\"]*)\"")
      continue() # what hosts see is for everybody
    elseif(line MATCHES "\"([^\"]*)\"")
      if(NOT CMAKE_MATCH_1 IN_LIST VISIBLE)
        report_violation("src/${file}" "its room does not see \"${CMAKE_MATCH_1}\"")
      endif()
    elseif(line MATCHES "<[^>]*>")
      if(PORTABLE AND NOT line MATCHES "<[a-z_]+>")
        report_violation("src/${file}" "portable code includes more than standard C++: ${line}")
      endif()
    else()
      report_violation("src/${file}" "an include that names no file")
    endif()
  endforeach()
endforeach()

if(violations GREATER 0)
  message(FATAL_ERROR "${violations} includes go the wrong way; CONTRIBUTING.md says which rooms see which")
endif()
