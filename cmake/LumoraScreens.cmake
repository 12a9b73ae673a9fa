# What reads pixels back has a screen for itself. Under Wine there are several screens, each with a Wine of its own; CTest deals
# them out. Windows has the one.
include_guard()

set(lumoraOnScreen "") # goes before the command of such a test
set(lumoraScreen RESOURCE_LOCK screen) # goes among its properties
if(CMAKE_CROSSCOMPILING)
  set(lumoraOnScreen "${PROJECT_SOURCE_DIR}/scripts/on-screen")
  set(lumoraScreen RESOURCE_GROUPS "screens:1")
endif()

# The programs that are added behind it run on a screen when they are tests.
macro(lumora_on_screen)
  list(PREPEND CMAKE_CROSSCOMPILING_EMULATOR ${lumoraOnScreen})
endmacro()
