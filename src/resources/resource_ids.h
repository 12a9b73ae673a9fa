/* Identifiers that the resources and the code share. */
#ifndef LUMORA_RESOURCE_IDS_H
#define LUMORA_RESOURCE_IDS_H

#define IconLumora 5

#define CommandSettings 40001
#define CommandSaveFrameRates 40002
#define CommandLogNone 40010
#define CommandLogBasic 40011
#define CommandLogNormal 40012
#define CommandLogDetailed 40013
#define CommandLogAll 40014
#define CommandDirectComposition 40020
#define CommandDirect2D 40021
#define CommandGDI 40022

#endif
