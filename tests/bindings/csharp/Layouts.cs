// Prints the binding's records as tests/bindings/layouts.c prints those of the C header.
using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;

internal static class Layouts
{
    private static readonly Dictionary<Type, string> names = new Dictionary<Type, string> {
        { typeof(bool), "uint8" }, { typeof(byte), "uint8" }, { typeof(uint), "uint32" }, { typeof(int), "int32" },
    };

    private static void Print(string name, Type record)
    {
        FieldInfo[] fields = record.GetFields(BindingFlags.Public | BindingFlags.NonPublic | BindingFlags.Instance);
        int size = Marshal.SizeOf(record);
        int[] offsets = fields.Select(field => Marshal.OffsetOf(record, field.Name).ToInt32()).Concat(new[] { size }).ToArray();
        for (int i = 0; i < fields.Length; ++i) {
            // A field reaches to the next one: the marshaller tells no sizes of fields.
            Console.WriteLine($"{name}.{fields[i].Name} {offsets[i]} {offsets[i + 1] - offsets[i]} {names[fields[i].FieldType]}");
        }
        Console.WriteLine($"{name} {size}");
    }

    private static void Main()
    {
        Print("LM_Params", typeof(Lumora.Params));
        Print("LM_PenData", typeof(Lumora.Params).Assembly.GetType("Lumora.PenData"));
    }
}
