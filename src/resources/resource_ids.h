/* Identifiers that the resources and the code share. */
#ifndef LUMORA_RESOURCE_IDS_H
#define LUMORA_RESOURCE_IDS_H

#define CommandDirectComposition 40020
#define CommandDirect2D 40021
#define CommandGDI 40022

#endif
