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

#define DialogSettings 101

#define GroupRendering 1002
#define GroupInkColor 1003
#define GroupBrush 1004
#define GroupInkLife 1005
#define GroupFramesPerSecond 1006
#define CheckLine 1008
#define CheckCursor 1009
#define CheckOutline 1010
#define CheckZebraMode 1011
#define CheckPressure 1012
#define CheckOffset 1013
#define ButtonColorPicker 1015
#define SwatchArea 1017
#define TrackbarBrushSize 1018
#define EditBrushSize 1019
#define TrackbarInkLife 1020
#define EditInkLife 1021
#define EditRgb 1022
#define ValueBarArea 1023
#define WheelArea 1024
#define LabelRgb 1025
#define LabelHsv 1026
#define EditHsv 1027
#define TrackbarFramesPerSecond 1028
#define EditFramesPerSecond 1029

#endif
