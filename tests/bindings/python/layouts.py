"""Prints the module's records as tests/bindings/layouts.c prints those of the C header."""
import ctypes

import lumora

NAMES = {ctypes.c_bool: "uint8", ctypes.c_uint8: "uint8", ctypes.c_uint32: "uint32", ctypes.c_int32: "int32"}

for name, record in (("LM_Params", lumora.Params), ("LM_PenData", lumora.PenData)):
    for field, kind in record._fields_:
        place = getattr(record, field)
        print(f"{name}.{field} {place.offset} {place.size} {NAMES[kind]}")
    print(f"{name} {ctypes.sizeof(record)}")
