/* Lumora's version: the one place. CMake, the version resource and the tests read the numbers from here. */
#ifndef LUMORA_VERSION_H
#define LUMORA_VERSION_H

#define LUMORA_VERSION_MAJOR 0
#define LUMORA_VERSION_MINOR 1
#define LUMORA_VERSION_BUILD 0
#define LUMORA_VERSION_REVISION 0

#endif
